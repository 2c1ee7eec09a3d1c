#include "exporters/orvwriter/StateArrays.h"

#include "host/orvexp/NativeFormat.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCSceneRT.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "platform/text/Text.h"

#include <TDataStd_ExtStringArray.hxx>
#include <TDataStd_IntegerArray.hxx>
#include <TDataStd_RealArray.hxx>

#include <map>

namespace orvwriter
{

namespace
{

namespace native = orvexp::native;

void setReals(TDF_Label const& label, std::vector<double> const& values)
{
    auto const array = TDataStd_RealArray::Set(label, 0, static_cast<int>(values.size()) - 1);
    for (std::size_t i = 0; i < values.size(); ++i) {
        array->SetValue(static_cast<int>(i), values[i]);
    }
}

void setIntegers(TDF_Label const& label, std::vector<int> const& values)
{
    if (values.empty()) {
        return;
    }
    auto const array = TDataStd_IntegerArray::Set(label, 0, static_cast<int>(values.size()) - 1);
    for (std::size_t i = 0; i < values.size(); ++i) {
        array->SetValue(static_cast<int>(i), values[i]);
    }
}

void append(std::vector<double>& list, orvsg::Transform const& transform)
{
    for (unsigned char i = 0; i < 16; ++i) {
        list.push_back(transform.matrix[i]);
    }
}

void append(std::vector<double>& list, orvmath::Tuple<float, 3> const& point)
{
    for (unsigned char i = 0; i < 3; ++i) {
        list.push_back(point[i]);
    }
}

/// A record's list of nodes, in the numbers that the nodes have in the file.
template <class List>
std::vector<int> renumbered(List const& list, std::map<int, int> const& numbers)
{
    std::vector<int> result;
    for (int const node : list) {
        auto const place = numbers.find(node);
        result.push_back(place == numbers.end() ? -1 : place->second);
    }
    return result;
}

void writeCamera(std::shared_ptr<orv::IDocument> const& model, TDF_Label const& label)
{
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(model);
    if (!renderer || !renderer->camera) {
        return;
    }
    auto const& camera = *renderer->camera;
    std::vector<double> numbers;
    for (auto const* point : {&camera.eye, &camera.target, &camera.up, &camera.centre}) {
        append(numbers, *point);
    }
    numbers.insert(numbers.end(), {camera.radius, camera.fieldOfView, camera.orthographic ? 1.0 : 0.0});
    setReals(label.FindChild(native::camera), numbers);
}

} // namespace

void writeState(std::shared_ptr<orv::IDocument> const& model, std::vector<Entry> const& entries, TDF_Label const& label)
{
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(model);
    auto const resources = orv::recordOf<orvsg::SCSceneRes>(model);
    auto const runtime = orv::recordOf<orvsg::SCSceneRT>(model);

    std::vector<double> placements;
    std::vector<double> initialPlacements;
    std::vector<int> flags;
    std::vector<int> colors;
    std::vector<double> transparencies;
    std::map<int, int> numbers;
    auto const names =
        TDataStd_ExtStringArray::Set(label.FindChild(native::names), 0, static_cast<int>(entries.size()) - 1);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        int const node = entries[i].node;
        names->SetValue(static_cast<int>(i),
                        TCollection_ExtendedString(orvtext::toUtf8(topology->nodes.getValue(node).name).c_str(), true));
        orvsg::Material material;
        orvsg::Transform current;
        orvsg::Transform initial;
        int flag = native::visible;
        if (!entries[i].isOwnGeometry) {
            numbers.try_emplace(node, static_cast<int>(i));
            int const transform = topology->transformOfNode.getValue(node);
            current = resources->transforms.getValue(transform);
            initial = resources->initialTransforms.getValue(transform);
            material = resources->materials.getValue(node);
            auto const bit = static_cast<std::size_t>(node);
            flag = runtime && bit < runtime->visibility.size() && !runtime->visibility[bit] ? 0 : native::visible;
        }
        flag |= current.isSet ? native::isPlaced : 0;
        flag |= initial.isSet ? native::isPlacedInitially : 0;
        flag |= material.hasOwnColor ? native::hasOwnColor : 0;
        flag |= material.isColored ? native::isColored : 0;
        flag |= material.isTransparent ? native::isTransparent : 0;
        append(placements, current);
        append(initialPlacements, initial);
        flags.push_back(flag);
        colors.push_back(static_cast<int>(material.ownColor & 0xFFFFFF));
        colors.push_back(static_cast<int>(material.color & 0xFFFFFF));
        transparencies.push_back(material.ownTransparency);
        transparencies.push_back(material.transparency);
    }
    setReals(label.FindChild(native::placements), placements);
    setReals(label.FindChild(native::initialPlacements), initialPlacements);
    setIntegers(label.FindChild(native::flags), flags);
    setIntegers(label.FindChild(native::colors), colors);
    setReals(label.FindChild(native::transparencies), transparencies);
    if (runtime) {
        setIntegers(label.FindChild(native::coloredNodes), renumbered(runtime->coloredNodes, numbers));
        setIntegers(label.FindChild(native::transparentNodes), renumbered(runtime->transparentNodes, numbers));
    }
    writeCamera(model, label);
}

} // namespace orvwriter
