#pragma once

#include "exporters/base/Exporter.h"
#include "exporters/meshwriters/MeshScene.h"

#include <cstddef>

namespace meshwriters
{

/// What tells one mesh format from another.
struct Format {
    wchar_t const* library;     ///< name of the exporter's library
    wchar_t const* identity;    ///< of the plug-in
    wchar_t const* extension;   ///< of its files
    char const* assimpId;       ///< Assimp's name of the format
    std::size_t mostInMesh = 0; ///< vertices and triangles that one mesh may have; 0 knows no limit
    std::size_t mostNodes = 0;  ///< parts and meshes together that a file may have; 0 knows no limit
    NameRules names = {};
};

/// Writes all parts of the model, hidden ones too, where they stand at the moment and in the colours that they show, by
/// Assimp. The setting "EXPORT_UNIT" chooses the unit of the coordinates.
class MeshExporter : public orvexport::Exporter
{
protected:
    explicit MeshExporter(Format const& written);

private:
    void write(orvexport::Job const& job) override;

    Format format;
};

} // namespace meshwriters
