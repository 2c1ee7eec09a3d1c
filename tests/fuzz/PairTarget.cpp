#include "fuzz/RoundTrip.h"
#include "fuzz/Targets.h"

#include <algorithm>
#include <cstring>

namespace orvfuzz
{

namespace
{

/// Takes values off the front of the input; zero where it has run out.
class Source
{
public:
    explicit Source(Input input) : rest(input) {}

    bool isEmpty() const { return rest.empty(); }

    template <class T>
    T number()
    {
        T value{};
        std::size_t const count = std::min(sizeof value, rest.size());
        std::memcpy(&value, rest.data(), count);
        rest = rest.subspan(count);
        return value;
    }

    /// Up to 255 characters. Most are taken as they stand; four ways of the first byte reach all others.
    std::wstring text()
    {
        auto const kind = number<std::uint8_t>();
        std::size_t const count = number<std::uint8_t>();
        std::wstring result;
        while (result.size() < count && !isEmpty()) {
            result.push_back(kind % 4 == 3   ? static_cast<wchar_t>(number<std::uint32_t>() & 0x1FFFFFU)
                             : kind % 4 == 2 ? static_cast<wchar_t>(number<std::uint16_t>())
                                             : static_cast<wchar_t>(number<std::uint8_t>()));
        }
        return result;
    }

    template <class Tuple>
    Tuple tuple(unsigned char size)
    {
        Tuple result;
        for (unsigned char i = 0; i < size; ++i) {
            result[i] = number<float>();
        }
        return result;
    }

private:
    Input rest;
};

FeedObjects objectsFrom(Source& source)
{
    FeedObjects objects;
    for (unsigned count = source.number<std::uint8_t>() % 4U; count > 0; --count) {
        objects.colored.push_back(source.tuple<Vector3>(3));
    }
    for (std::vector<int>* nodes : {&objects.transparent, &objects.hidden}) {
        for (unsigned count = source.number<std::uint8_t>() % 16U; count > 0; --count) {
            nodes->push_back(source.number<int>());
        }
    }
    for (unsigned count = source.number<std::uint8_t>() % 16U; count > 0; --count) {
        int const node = source.number<int>();
        objects.nodecolor.emplace(node, source.number<int>());
    }
    for (unsigned count = source.number<std::uint8_t>() % 8U; count > 0; --count) {
        int const node = source.number<int>();
        objects.nodetransform.emplace(node, source.tuple<Matrix4>(16));
    }
    return objects;
}

} // namespace

void fuzzPair(Input input)
{
    Source source(input);
    Feed feed;
    feed.comment.objects = objectsFrom(source);
    FeedViewport& viewport = feed.comment.viewport;
    viewport.zoom = source.number<double>();
    for (Vector3* vector : {&viewport.eye, &viewport.target, &viewport.up}) {
        *vector = source.tuple<Vector3>(3);
    }
    auto const flags = source.number<std::uint8_t>();
    feed.author.canDelete = (flags & 1U) != 0;
    feed.author.canEdit = (flags & 2U) != 0;
    for (std::wstring* text :
         {&feed.comment.content, &feed.author.name, &feed.thumbnail, &feed.author.id, &feed.author.email, &feed.file.id,
          &feed.file.name, &feed.action.type, &feed.action.value, &feed.comment.id, &feed.comment.commentType,
          &feed.comment.publishedTime, &feed.comment.updatedTime, &feed.source}) {
        *text = source.text();
    }
    checkRoundTrip(feed);
}

} // namespace orvfuzz
