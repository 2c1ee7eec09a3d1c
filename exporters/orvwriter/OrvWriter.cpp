// The viewer's own format ".orvanta".

#include "exporters/base/EntryPoints.h"
#include "exporters/base/Exporter.h"
#include "exporters/orvwriter/NativeDocument.h"
#include "host/orvexp/NativeFormat.h"

#include <BinDrivers_DocumentStorageDriver.hxx>
#include <BinXCAFDrivers.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_ProgressIndicator.hxx>
#include <Message_ProgressScope.hxx>
#include <TDocStd_Application.hxx>
#include <zlib.h>

#include <sstream>
#include <string>

namespace
{

namespace native = orvexp::native;

class ProgressBridge : public Message_ProgressIndicator
{
    DEFINE_STANDARD_RTTI_INLINE(ProgressBridge, Message_ProgressIndicator)

public:
    ProgressBridge(orvexport::Progress& bar, double first, double last) : progress(bar), start(first), end(last) {}

    void Show(Message_ProgressScope const&, Standard_Boolean) override
    {
        progress.set(start + (end - start) * GetPosition());
    }

private:
    orvexport::Progress& progress;
    double start;
    double end;
};

/// An application of the kernel's framework, with one document that is closed again.
class Session
{
public:
    Session() : application(new TDocStd_Application)
    {
        BinXCAFDrivers::DefineFormat(application);
        application->NewDocument("BinXCAF", document);
        auto const driver =
            Handle(BinDrivers_DocumentStorageDriver)::DownCast(application->WriterFromFormat("BinXCAF"));
        if (!driver.IsNull()) {
            driver->SetWithNormals(Message::DefaultMessenger(), Standard_True);
        }
    }
    ~Session() { application->Close(document); }
    Session(Session const&) = delete;
    Session& operator=(Session const&) = delete;

    Handle(TDocStd_Application) application;
    Handle(TDocStd_Document) document;
};

std::string sealOf(std::string_view content)
{
    std::string seal(native::sealMark);
    auto const add = [&seal](std::uint64_t value, int bytes) {
        for (int i = 0; i < bytes; ++i) {
            seal.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
        }
    };
    add(content.size(), 8);
    add(crc32_z(0, reinterpret_cast<unsigned char const*>(content.data()), content.size()), 4);
    return seal;
}

class NativeExporter final : public orvexport::Exporter
{
public:
    NativeExporter() : Exporter(L"orvwriter", L"{5d0f9c52-7d0e-4a8c-8f2b-6b1c6fd0a4e3}", {L"orvanta"}) {}

private:
    void write(orvexport::Job const& job) override
    {
        Session session;
        constexpr double filled = 0.5;
        constexpr double stored = 0.9;
        if (!orvwriter::fillDocument(job.document, session.document,
                                     [&](double done) { job.progress.set(filled * done); })) {
            throw orvexport::NothingToWrite();
        }
        std::stringstream content;
        Handle(ProgressBridge) const bridge = new ProgressBridge(job.progress, filled, stored);
        if (session.application->SaveAs(session.document, content, bridge->Start()) != PCDM_SS_OK || !content) {
            throw orvexport::OutputError("the model can't be stored");
        }
        job.file.write(content.view());
        job.file.write(sealOf(content.view()));
    }
};

} // namespace

ORV_EXPORTER_ENTRY_POINTS(NativeExporter)
