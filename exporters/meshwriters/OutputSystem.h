#pragma once

#include "exporters/output/OutputFile.h"

#include <assimp/IOSystem.hpp>

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace meshwriters
{

/// Lets Assimp write through output files: the wanted file, and those that a format writes beside it, such as a library
/// of materials. Assimp writes on when a write fails and partly within destructors, so that the first failure is kept
/// rather than thrown.
class OutputSystem final : public Assimp::IOSystem
{
public:
    OutputSystem(std::filesystem::path const& wanted, orvexport::OutputFile& file);

    bool Exists(char const* path) const override;
    char getOsSeparator() const override { return '/'; }
    Assimp::IOStream* Open(char const* path, char const* mode) override;
    void Close(Assimp::IOStream* stream) override;

    /// Throws the first failure, where there was one.
    void check() const;
    /// Hands over the files beside the wanted one, which has its owner already.
    void moveOthers(std::vector<std::unique_ptr<orvexport::OutputFile>>& files);

private:
    std::filesystem::path main;
    orvexport::OutputFile& mainFile;
    std::map<std::string, std::unique_ptr<orvexport::OutputFile>> others;
    std::optional<orvexport::OutputError> failure;
};

} // namespace meshwriters
