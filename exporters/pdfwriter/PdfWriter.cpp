// A 3D PDF of the model: one page on which it can be turned.

#include "exporters/base/EntryPoints.h"
#include "exporters/base/Exporter.h"
#include "exporters/base/PlacedParts.h"
#include "exporters/page/PdfPage.h"
#include "exporters/pdfwriter/ModelPage.h"
#include "exporters/prc/PrcWriter.h"
#include "exporters/prcdelaywriter/SceneBuilder.h"
#include "host/orv/IDocument.h"
#include "host/orvgl/SCRenderer.h"
#include "host/runtime/IFrameRenderer.h"

#include <algorithm>
#include <cmath>

namespace
{

using pdfwriter::cameraFrom;
using pdfwriter::Poster;
using pdfwriter::Vector;
using pdfwriter::View3D;
using pdfwriter::viewOf;

constexpr double encoded = 0.6;
constexpr double drawn = 0.75;

/// The view without what stands beside the model, as long as this lives.
class ModelAlone
{
public:
    explicit ModelAlone(std::shared_ptr<orvgl::SCRenderer> record) : renderer(std::move(record))
    {
        if (renderer) {
            before = renderer->settings;
            renderer->settings = {false, false, false};
        }
    }
    ~ModelAlone()
    {
        if (renderer) {
            renderer->settings = before;
        }
    }
    ModelAlone(ModelAlone const&) = delete;
    ModelAlone& operator=(ModelAlone const&) = delete;

private:
    std::shared_ptr<orvgl::SCRenderer> renderer;
    orvgl::RendererSettings before;
};

Poster posterOf(std::shared_ptr<orv::IDocument> const& document)
{
    auto const frames = orvhost::frameRenderer();
    if (!frames) {
        return {};
    }
    constexpr double pixelsPerPoint = 2; // 144 to the inch
    Poster poster;
    poster.width = static_cast<unsigned>(std::lround(pdfwriter::fieldWidth * pixelsPerPoint));
    poster.height = static_cast<unsigned>(std::lround(pdfwriter::fieldHeight * pixelsPerPoint));
    poster.pixels.resize(std::size_t{3} * poster.width * poster.height);
    ModelAlone const alone(orv::recordOf<orvgl::SCRenderer>(document));
    constexpr bool onWhite = true; // as the page, and as the views that the poster makes way for
    return frames->drawFrame(document, poster.width, poster.height, onWhite, poster.pixels.data()) ? poster : Poster();
}

/// The current view, and the usual ones around the model.
std::vector<View3D> viewsOf(std::shared_ptr<orv::IDocument> const& document,
                            std::vector<orvexport::PlacedPart> const& parts)
{
    Vector lowest{1e300, 1e300, 1e300};
    Vector highest{-1e300, -1e300, -1e300};
    for (auto const& part : parts) {
        for (auto const& piece : part.pieces) {
            for (auto const vertex : piece.triangles) {
                auto const point = worldPoint(part, vertex);
                for (std::size_t i = 0; i < 3; ++i) {
                    lowest[i] = std::min(lowest[i], point[i]);
                    highest[i] = std::max(highest[i], point[i]);
                }
            }
        }
    }
    Vector centre{};
    double square = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        centre[i] = (lowest[i] + highest[i]) / 2;
        square += (highest[i] - lowest[i]) * (highest[i] - lowest[i]) / 4;
    }
    double const radius = std::sqrt(square);
    std::vector<View3D> views;
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(document);
    if (renderer && renderer->camera) {
        views.push_back(viewOf(*renderer->camera, "Current view"));
    }
    struct Usual {
        char const* name;
        Vector from;
        Vector up;
    };
    for (auto const& [name, from, up] :
         {Usual{"Isometric", {1, -1, 1}, {0, 0, 1}}, Usual{"Front", {0, -1, 0}, {0, 0, 1}},
          Usual{"Right", {1, 0, 0}, {0, 0, 1}}, Usual{"Top", {0, 0, 1}, {0, 1, 0}}}) {
        views.push_back(viewOf(cameraFrom(from, up, centre, radius), name));
    }
    return views;
}

std::string factsOf(std::vector<orvexport::PlacedPart> const& parts)
{
    std::size_t corners = 0;
    for (auto const& part : parts) {
        for (auto const& piece : part.pieces) {
            corners += piece.triangles.size();
        }
    }
    auto const counted = [](std::size_t count, std::string const& noun) {
        return "   \u00B7   " + std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
    };
    return orvexport::today() + counted(parts.size(), "part") + counted(corners / 3, "triangle");
}

class PdfExporter final : public orvexport::Exporter
{
public:
    PdfExporter() : Exporter(L"pdfwriter", L"{2c8d5e61-90b7-4d3a-b1f8-7e4a0c6d9f52}", {L"pdf"}) {}

private:
    void write(orvexport::Job const& job) override
    {
        auto const parts = orvexport::placedParts(job.document);
        constexpr double millimetres = 1; // views and model are measured alike
        auto const scene = prcdelay::buildScene(job.document, millimetres);
        if (parts.empty() || !scene) {
            throw orvexport::NothingToWrite();
        }
        pdfwriter::ModelPage page;
        prc::WriteOptions options;
        options.progress = [&job](double done) {
            job.progress.set(encoded * done);
            return true;
        };
        page.prc = prc::encode(*scene, options);
        page.title = orvexport::modelName(job.document);
        page.facts = factsOf(parts);
        page.views = viewsOf(job.document, parts);
        page.poster = posterOf(job.document);
        job.progress.set(drawn);
        job.file.write(pdfwriter::pdfOf(page));
    }
};

} // namespace

ORV_EXPORTER_ENTRY_POINTS(PdfExporter)
