#include "exporters/prcdelaywriter/DocumentMaker.h"

DocumentMaker::DocumentMaker()
{
    auto made = std::make_shared<orv::Document>();
    made->setSchema(orvsg::SCSceneRes::key, resources);
    made->setSchema(orvsg::SCSceneTopo::key, topology);
    made->setSchema(orvsg::SCSceneRT::key, runtime);
    made->setSchema(orvsg::SCInfo::key, info);
    document = made;
}

int DocumentMaker::addSquare(float size, std::optional<unsigned long> secondFaceColor)
{
    auto mesh = std::make_shared<orvsg::Mesh>();
    // Each triangle has vertices of its own, as a tessellated solid has for each face.
    mesh->positions = {0, 0, 0, size, 0, 0, size, size, 0, 0, 0, 0, size, size, 0, 0, size, 0};
    mesh->normals = {0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1};
    mesh->triangles = {0, 1, 2, 3, 4, 5};
    mesh->faces = {{0, 1, {}}, {1, 1, secondFaceColor}};
    resources->meshes.push_back(mesh);
    return static_cast<int>(resources->meshes.size()) - 1;
}

int DocumentMaker::addNode(std::wstring const& name, int parent, int mesh)
{
    int const number = static_cast<int>(topology->nodes.size());
    orvsg::Node node;
    node.name = name;
    node.parent = parent;
    node.mesh = mesh;
    topology->nodes.append(node);
    if (parent >= 0) {
        orvsg::Node above = topology->nodes.getValue(parent);
        above.children.push_back(number);
        topology->nodes.setValue(parent, above);
    }
    topology->transformOfNode.append(number);
    resources->transforms.append({});
    resources->initialTransforms.append({});
    resources->materials.append({});
    resources->boxes.append({});
    runtime->visibility.push_back(true);
    return number;
}

void DocumentMaker::move(int node, float x, float y, float z)
{
    orvsg::Transform transform;
    transform.matrix[12] = x;
    transform.matrix[13] = y;
    transform.matrix[14] = z;
    setMatrix(node, transform.matrix);
}

void DocumentMaker::setMatrix(int node, orvmath::Tuple<float, 16> const& matrix)
{
    orvsg::Transform transform;
    transform.matrix = matrix;
    transform.isSet = true;
    resources->transforms.setValue(node, transform);
}

void DocumentMaker::setFileColor(int node, unsigned long color)
{
    orvsg::Material material = resources->materials.getValue(node);
    material.hasOwnColor = true;
    material.ownColor = color;
    resources->materials.setValue(node, material);
}
