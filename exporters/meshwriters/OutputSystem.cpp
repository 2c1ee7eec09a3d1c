#include "exporters/meshwriters/OutputSystem.h"

#include <assimp/IOStream.hpp>

#include <utility>

namespace meshwriters
{

namespace
{

class OutputStream final : public Assimp::IOStream
{
public:
    OutputStream(orvexport::OutputFile& output, std::optional<orvexport::OutputError>& error)
        : file(output), failure(error)
    {
    }

    std::size_t Read(void*, std::size_t, std::size_t) override { return 0; }
    std::size_t Write(void const* bytes, std::size_t size, std::size_t count) override
    {
        return guarded([&] { file.write(bytes, size * count); }) ? count : 0;
    }
    aiReturn Seek(std::size_t offset, aiOrigin origin) override
    {
        std::uint64_t const start = origin == aiOrigin_SET ? 0 : origin == aiOrigin_CUR ? file.position() : file.size();
        return guarded([&] { file.seek(start + offset); }) ? aiReturn_SUCCESS : aiReturn_FAILURE;
    }
    std::size_t Tell() const override { return file.position(); }
    std::size_t FileSize() const override { return file.size(); }
    void Flush() override {}

private:
    template <class Work>
    bool guarded(Work work)
    {
        if (!failure) {
            try {
                work();
            } catch (orvexport::OutputError const& error) {
                failure = error;
            }
        }
        return !failure;
    }

    orvexport::OutputFile& file;
    std::optional<orvexport::OutputError>& failure;
};

} // namespace

OutputSystem::OutputSystem(std::filesystem::path const& wanted, orvexport::OutputFile& file)
    : main(wanted), mainFile(file)
{
}

bool OutputSystem::Exists(char const* path) const
{
    return std::filesystem::exists(path);
}

Assimp::IOStream* OutputSystem::Open(char const* path, char const*)
{
    if (std::filesystem::path(path) == main) {
        return new OutputStream(mainFile, failure);
    }
    auto& other = others[path];
    try {
        if (!other) {
            other = std::make_unique<orvexport::OutputFile>(path);
        }
    } catch (orvexport::OutputError const& error) {
        failure = error;
        return nullptr;
    }
    return new OutputStream(*other, failure);
}

void OutputSystem::Close(Assimp::IOStream* stream)
{
    delete stream;
}

void OutputSystem::check() const
{
    if (failure) {
        throw *failure;
    }
}

void OutputSystem::moveOthers(std::vector<std::unique_ptr<orvexport::OutputFile>>& files)
{
    for (auto& [path, file] : others) {
        files.push_back(std::move(file));
    }
    others.clear();
}

} // namespace meshwriters
