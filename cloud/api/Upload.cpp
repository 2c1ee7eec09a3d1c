#include "cloud/api/Upload.h"

#include "cloud/feed/Feed.h"
#include "cloud/http/Multipart.h"

#include <algorithm>
#include <array>

namespace orvcloud
{
namespace
{
constexpr std::size_t longestParameter = 8192;
constexpr std::size_t mostParameters = 32;
constexpr std::array<std::string_view, 3> required{"username", "type", "filename"};

bool isFileName(const std::string& name)
{
    return !name.empty() && name.size() <= 255 && !hasControlCharacter(name) && name != "." && name != ".." &&
           name.find_first_of("/\\") == std::string::npos;
}

bool isType(const std::string& type)
{
    return !type.empty() && type.size() <= 16 && std::all_of(type.begin(), type.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    });
}

class UploadSink final : public BodySink, private MultipartEvents
{
public:
    UploadSink(const Parts& parts, const RequestHead& head, const Account& account, std::string_view boundary)
        : call{parts, head, {}, account}, reader(boundary, *this)
    {
    }

    std::optional<Answer> take(std::string_view bytes) override
    {
        if (reader.read(bytes))
            return std::nullopt;
        return refusal ? refusal : fail(400, "The upload's form can't be read.");
    }

    Answer finish() override
    {
        if (!reader.complete())
            return fail(400, "The upload ended too early; try again.");
        if (!file)
            return fail(400, "The upload holds no file.");
        const StoredFile stored = file->keep();
        const std::int64_t now = call.parts.clock();
        const std::string newJobId = randomUuid();
        return succeed(call.parts.store.addVersion(
            call.account.id, call["filename"], {call["type"], stored.contentHash, stored.size}, newJobId,
            [&] { return automaticEntries(newJobId, call["filename"], now); }, now));
    }

private:
    bool refuse(Answer answer)
    {
        refusal = std::move(answer);
        return false;
    }

    bool beginPart(std::string_view name, bool) override
    {
        if (file)
            return refuse(fail(400, "The file must be the upload's last part."));
        partName = name;
        partValue.clear();
        if (name != "file")
            return call.parameters.all().size() < mostParameters ||
                   refuse(fail(400, "The upload has too many parameters."));
        if (auto answer = checkParameters(call, required, true, ""))
            return refuse(std::move(*answer));
        if (!isFileName(call["filename"]))
            return refuse(fail(400, "The file's name can't be used; name it without a folder."));
        if (!isType(call["type"]))
            return refuse(fail(400, "The file's type can't be used; it is a short word like prc."));
        file = call.parts.vault.receive();
        return true;
    }

    bool partData(std::string_view bytes) override
    {
        if (file) {
            file->append(bytes);
            return true;
        }
        partValue += bytes;
        return partValue.size() <= longestParameter || refuse(fail(400, "A parameter of the upload is too long."));
    }

    bool endPart() override
    {
        if (file)
            return true;
        if (!isUtf8(partName) || !isUtf8(partValue))
            return refuse(fail(400, "A parameter of the upload isn't UTF-8."));
        return call.parameters.add(std::move(partName), std::move(partValue)) ||
               refuse(fail(400, "A parameter of the upload was given twice."));
    }

    Call call;
    MultipartReader reader;
    std::string partName;
    std::string partValue;
    std::unique_ptr<IncomingFile> file;
    std::optional<Answer> refusal;
};
} // namespace

std::unique_ptr<BodySink> makeUploadSink(const Parts& parts, const RequestHead& head, const Account& account)
{
    const auto boundary = multipartBoundary(head.contentType);
    return boundary ? std::make_unique<UploadSink>(parts, head, account, *boundary) : nullptr;
}

} // namespace orvcloud
