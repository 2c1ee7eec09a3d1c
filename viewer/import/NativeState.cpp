#include "viewer/import/NativeState.h"

#include "host/orvexp/NativeFormat.h"
#include "platform/text/Text.h"

#include <BinXCAFDrivers.hxx>
#include <TDataStd_ExtStringArray.hxx>
#include <TDataStd_IntegerArray.hxx>
#include <TDataStd_RealArray.hxx>
#include <TDocStd_Application.hxx>
#include <zlib.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <vector>

namespace orvviewer
{

namespace
{

namespace native = orvexp::native;

std::uint64_t numberAt(std::string const& bytes, std::size_t offset, int count)
{
    std::uint64_t value = 0;
    for (int i = 0; i < count; ++i) {
        value |= static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[offset + static_cast<std::size_t>(i)]))
                 << (8 * i);
    }
    return value;
}

/// The document before the seal; empty where the seal doesn't fit.
std::string sealedContent(std::string const& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream read;
    read << in.rdbuf();
    std::string content = std::move(read).str();
    if (content.size() < native::sealSize) {
        return {};
    }
    std::size_t const length = content.size() - native::sealSize;
    std::size_t const mark = native::sealMark.size();
    if (content.compare(length, mark, native::sealMark) != 0 || numberAt(content, length + mark, 8) != length) {
        return {};
    }
    auto const expected = numberAt(content, length + mark + 8, 4);
    content.resize(length);
    return crc32_z(0, reinterpret_cast<unsigned char const*>(content.data()), length) == expected ? content : "";
}

/// An array of the state as a list; empty where it isn't there.
template <class Array>
auto listOf(TDF_Label const& state, int tag)
{
    std::vector<std::decay_t<decltype(Handle(Array)()->Value(0))>> list;
    Handle(Array) array;
    TDF_Label const label = state.FindChild(tag, Standard_False);
    if (!label.IsNull() && label.FindAttribute(Array::GetID(), array)) {
        for (int i = array->Lower(); i <= array->Upper(); ++i) {
            list.push_back(array->Value(i));
        }
    }
    return list;
}

bool areFinite(std::vector<double> const& numbers)
{
    return std::all_of(numbers.begin(), numbers.end(), [](double x) { return std::isfinite(x); });
}

orvsg::Transform transformAt(std::vector<double> const& numbers, std::size_t node, bool isSet)
{
    orvsg::Transform transform;
    transform.isSet = isSet;
    for (unsigned char i = 0; i < 16; ++i) {
        transform.matrix[i] = static_cast<float>(numbers[16 * node + i]);
    }
    return transform;
}

orvmath::Tuple<float, 3> pointAt(std::vector<double> const& numbers, std::size_t first)
{
    return {static_cast<float>(numbers[first]), static_cast<float>(numbers[first + 1]),
            static_cast<float>(numbers[first + 2])};
}

std::wstring textOf(TCollection_ExtendedString const& text)
{
    std::string utf8(static_cast<std::size_t>(text.LengthOfCString()), '\0');
    Standard_PCharacter buffer = utf8.data();
    text.ToUTF8CString(buffer);
    return orvtext::fromUtf8(utf8);
}

/// The list of the file made to hold the flagged nodes and no others: taking all colours off goes by the list, so a
/// node that it lacked would keep its own.
orvsg::NodeList nodeList(std::vector<int> const& nodes, std::vector<int> const& flags, native::Flag flag)
{
    auto const isFlagged = [&](std::size_t node) { return (flags[node] & flag) != 0; };
    orvsg::NodeList list;
    for (int const node : nodes) {
        auto const at = static_cast<std::size_t>(node);
        bool const belongs = node >= 0 && at < flags.size() && isFlagged(at) && !list.holds(node);
        list.append(belongs ? node : -1);
    }
    for (std::size_t node = 0; node < flags.size(); ++node) {
        if (isFlagged(node)) {
            list.enter(static_cast<int>(node));
        }
    }
    return list;
}

std::optional<orvgl::Camera> cameraOf(std::vector<double> const& numbers)
{
    if (numbers.size() != native::cameraNumbers || !areFinite(numbers)) {
        return {};
    }
    orvgl::Camera camera;
    camera.eye = pointAt(numbers, 0);
    camera.target = pointAt(numbers, 3);
    camera.up = pointAt(numbers, 6);
    camera.centre = pointAt(numbers, 9);
    camera.radius = static_cast<float>(numbers[12]);
    camera.fieldOfView = static_cast<float>(numbers[13]);
    camera.orthographic = numbers[14] != 0;
    return camera;
}

} // namespace

bool readNative(std::string const& utf8Path, Handle(TDocStd_Document) & document, Message_ProgressRange const& progress)
{
    auto content = sealedContent(utf8Path);
    if (content.empty()) {
        return false;
    }
    Handle(TDocStd_Application) const application = new TDocStd_Application;
    BinXCAFDrivers::DefineFormat(application);
    std::istringstream in(std::move(content));
    return application->Open(in, document, progress) == PCDM_RS_OK && !document.IsNull();
}

std::optional<orvgl::Camera> applyNativeState(Handle(TDocStd_Document) const& document, SceneRecords& records)
{
    TDF_Label const state = document->Main().FindChild(native::stateTag, Standard_False);
    if (state.IsNull()) {
        return {};
    }
    auto const names = listOf<TDataStd_ExtStringArray>(state, native::names);
    auto const placements = listOf<TDataStd_RealArray>(state, native::placements);
    auto const initial = listOf<TDataStd_RealArray>(state, native::initialPlacements);
    auto const flags = listOf<TDataStd_IntegerArray>(state, native::flags);
    auto const colors = listOf<TDataStd_IntegerArray>(state, native::colors);
    auto const transparencies = listOf<TDataStd_RealArray>(state, native::transparencies);
    auto& nodes = records.topology->nodes;
    auto const count = nodes.size();
    if (names.size() != count || placements.size() != 16 * count || initial.size() != 16 * count ||
        flags.size() != count || colors.size() != 2 * count || transparencies.size() != 2 * count ||
        !areFinite(placements) || !areFinite(initial) || !areFinite(transparencies)) {
        return {};
    }
    for (std::size_t i = 0; i < count; ++i) {
        int const node = static_cast<int>(i);
        auto record = nodes.getValue(node);
        record.name = textOf(names[i]);
        nodes.setValue(node, record);
        int const transform = records.topology->transformOfNode.getValue(node);
        auto& resources = *records.resources;
        resources.transforms.setValue(transform, transformAt(placements, i, (flags[i] & native::isPlaced) != 0));
        resources.initialTransforms.setValue(transform,
                                             transformAt(initial, i, (flags[i] & native::isPlacedInitially) != 0));
        orvsg::Material material;
        material.hasOwnColor = (flags[i] & native::hasOwnColor) != 0;
        material.ownColor = static_cast<unsigned long>(colors[2 * i]) & 0xFFFFFF;
        material.ownTransparency = static_cast<float>(transparencies[2 * i]);
        material.isColored = (flags[i] & native::isColored) != 0;
        material.color = static_cast<unsigned long>(colors[2 * i + 1]) & 0xFFFFFF;
        material.isTransparent = (flags[i] & native::isTransparent) != 0;
        material.transparency = static_cast<float>(transparencies[2 * i + 1]);
        resources.materials.setValue(node, material);
        records.runtime->visibility[i] = (flags[i] & native::visible) != 0;
    }
    records.runtime->coloredNodes =
        nodeList(listOf<TDataStd_IntegerArray>(state, native::coloredNodes), flags, native::isColored);
    records.runtime->transparentNodes =
        nodeList(listOf<TDataStd_IntegerArray>(state, native::transparentNodes), flags, native::isTransparent);
    return cameraOf(listOf<TDataStd_RealArray>(state, native::camera));
}

} // namespace orvviewer
