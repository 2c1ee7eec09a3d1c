// Bills of materials: ".csv" for other programs, ".bompdf" for printing, a PDF file by another name.

#include "exporters/base/EntryPoints.h"
#include "exporters/base/Exporter.h"
#include "exporters/bomwriter/BomPdf.h"
#include "exporters/bomwriter/BomTable.h"
#include "exporters/page/PdfPage.h"

namespace
{

class BomExporter final : public orvexport::Exporter
{
public:
    BomExporter() : Exporter(L"bomwriter", L"{7b2e4d90-a6c1-4f38-9e57-0d3c8b1f6a25}", {L"csv", L"bompdf"}) {}

private:
    void write(orvexport::Job const& job) override
    {
        auto const table = bomwriter::bomTable(job.document);
        if (job.extension == L"csv") {
            job.file.write(bomwriter::csvOf(table));
        } else {
            job.file.write(
                bomwriter::pdfOf(table, orvexport::today(), [&](double done) { job.progress.set(0.95 * done); }));
        }
    }
};

} // namespace

ORV_EXPORTER_ENTRY_POINTS(BomExporter)
