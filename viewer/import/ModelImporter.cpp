#include "viewer/import/ModelImporter.h"

#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCBom.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCPmi.h"
#include "host/runtime/Files.h"
#include "platform/text/Text.h"
#include "viewer/import/AssemblyWalker.h"
#include "viewer/import/CrashGuard.h"
#include "viewer/import/FileKind.h"
#include "viewer/import/NativeState.h"
#include "viewer/import/StepReferences.h"
#include "viewer/import/XcafReader.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_PrinterOStream.hxx>
#include <Message_ProgressIndicator.hxx>
#include <Message_ProgressScope.hxx>
#include <Standard_Failure.hxx>

#include <exception>
#include <filesystem>
#include <mutex>
#include <optional>

namespace orvviewer
{

namespace
{

constexpr wchar_t const* damaged =
    L"can't be read: its content is damaged. Export the model again and open the new file.";

class ProgressBridge : public Message_ProgressIndicator
{
    DEFINE_STANDARD_RTTI_INLINE(ProgressBridge, Message_ProgressIndicator)

public:
    explicit ProgressBridge(ImportProgress& target) : progress(target) {}

    Standard_Boolean UserBreak() override { return progress.stopRequested.load(); }
    void Show(Message_ProgressScope const&, Standard_Boolean) override
    {
        progress.percent = static_cast<int>(GetPosition() * 100.0);
    }

private:
    ImportProgress& progress;
};

/// The kernel reports to standard output, where nobody looks.
void silenceKernel()
{
    static std::once_flag once;
    std::call_once(once, [] { Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_PrinterOStream)); });
}

std::shared_ptr<orv::Document> makeDocument(SceneRecords records, std::wstring const& path,
                                            std::optional<orvgl::Camera> const& camera)
{
    auto const nodeCount = records.topology->nodes.size();
    auto info = std::make_shared<orvsg::SCInfo>();
    info->setFile(path);
    info->documentKind = nodeCount > 1 ? orvsg::SCInfo::assembly : orvsg::SCInfo::part;

    auto document = std::make_shared<orv::Document>();
    document->setSchema(orvsg::SCSceneTopo::key, std::move(records.topology));
    document->setSchema(orvsg::SCSceneRes::key, std::move(records.resources));
    document->setSchema(orvsg::SCSceneRT::key, std::move(records.runtime));
    document->setSchema(EdgeRecord::key, std::move(records.edges));
    document->setSchema(orvsg::SCInfo::key, std::move(info));
    auto renderer = std::make_shared<orvgl::SCRenderer>();
    if (camera) {
        *renderer->camera = *camera;
    }
    document->setSchema(orvgl::SCRenderer::key, std::move(renderer));
    document->setSchema(orvsg::SCPmi::key, std::make_shared<orvsg::SCPmi>());
    document->setSchema(orvsg::SCBom::BOM, std::make_shared<orvsg::SCBom>());
    return document;
}

ImportResult failed(std::wstring const& name, wchar_t const* what)
{
    return {nullptr, L"\"" + name + L"\" " + what, false};
}

ImportResult readModel(std::wstring const& path, FileKind kind, ImportProgress& progress)
{
    auto const file = orvhost::nativePath(path);
    auto const name = orvtext::fromUtf8(file.filename().string());
    Handle(ProgressBridge) const bridge = new ProgressBridge(progress);
    Message_ProgressScope whole(bridge->Start(), "Opening", 100);

    if (kind == FileKind::step && !hasAllReferences(file.string())) {
        return failed(name, L"isn't whole: entries that others refer to are missing. Copy or export the file again.");
    }
    Handle(TDocStd_Document) structured = new TDocStd_Document("BinXCAF");
    bool const isRead = readStructured(kind, file.string(), structured, whole.Next(50));
    if (progress.stopRequested) {
        return {nullptr, L"Opening \"" + name + L"\" was stopped.", true};
    }
    if (!isRead) {
        return failed(name, damaged);
    }
    auto records =
        walkAssembly(structured, orvtext::fromUtf8(file.stem().string()), kind == FileKind::step, whole.Next(50));
    if (progress.stopRequested) {
        return {nullptr, L"Opening \"" + name + L"\" was stopped.", true};
    }
    if (records.resources->meshes.empty()) {
        return failed(name, L"holds no part with surfaces. Export the model with its solids and open the new file.");
    }
    std::optional<orvgl::Camera> camera;
    if (kind == FileKind::native) {
        camera = applyNativeState(structured, records);
    }
    progress.percent = 100;
    auto const whereItLies = orvtext::fromUtf8(std::filesystem::absolute(file).lexically_normal().string());
    return {makeDocument(std::move(records), whereItLies, camera), {}, false};
}

} // namespace

ImportResult importModel(std::wstring const& path, ImportProgress& progress)
{
    std::wstring name;
    try {
        name = orvtext::fromUtf8(orvhost::nativePath(path).filename().string());
        auto const check = checkFile(path);
        if (!check.error.empty()) {
            return {nullptr, check.error, false};
        }
        silenceKernel();
        ImportResult result;
        if (!runGuarded([&] { result = readModel(path, check.kind, progress); })) {
            return failed(name, damaged);
        }
        return result;
    } catch (Standard_Failure const&) {
        return failed(name, damaged);
    } catch (std::bad_alloc const&) {
        return failed(name, L"needs more memory than there is. Close other programs and try again.");
    } catch (std::exception const&) {
        return failed(name, L"can't be opened. Check the file and try again.");
    }
}

} // namespace orvviewer
