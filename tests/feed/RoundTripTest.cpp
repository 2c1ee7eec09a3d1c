#include "feed/FeedReader.h"
#include "feed/FeedWriter.h"
#include "feed/SceneCapture.h"
#include "feed/ViewReplay.h"
#include "platform/text/Text.h"
#include "support/TreeScene.h"

#include <gtest/gtest.h>

#include <json/json.h>

#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

// Views of random scenes on their way through a record and back. Every case has its number for a seed.

namespace
{

constexpr int caseCount = 10000;

/// Any finite float, the smallest, the largest and both zeros among them.
float anyFloat(std::mt19937& random)
{
    for (;;) {
        auto const value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (std::isfinite(value)) {
            return random() % 16 == 0 ? std::copysign(0.0F, value) : value;
        }
    }
}

Vector3 anyVector(std::mt19937& random)
{
    Vector3 vector;
    for (unsigned char i = 0; i < 3; ++i) {
        vector[i] = anyFloat(random);
    }
    return vector;
}

Matrix4 anyMatrix(std::mt19937& random)
{
    Matrix4 matrix;
    for (unsigned char i = 0; i < 16; ++i) {
        matrix[i] = anyFloat(random);
    }
    return matrix;
}

template <std::size_t N>
void expectSameBits(orvmath::Tuple<float, N> const& a, orvmath::Tuple<float, N> const& b)
{
    for (unsigned char i = 0; i < N; ++i) {
        EXPECT_EQ(std::bit_cast<std::uint32_t>(a[i]), std::bit_cast<std::uint32_t>(b[i])) << a[i] << " and " << b[i];
    }
}

void expectSameCamera(FeedViewport const& a, FeedViewport const& b)
{
    expectSameBits(a.eye, b.eye);
    expectSameBits(a.target, b.target);
    expectSameBits(a.up, b.up);
}

/// All but the colours by position.
void expectSameNodes(FeedObjects const& a, FeedObjects const& b)
{
    EXPECT_EQ(a.hidden, b.hidden);
    EXPECT_EQ(a.transparent, b.transparent);
    EXPECT_EQ(a.nodecolor, b.nodecolor);
    ASSERT_EQ(a.nodetransform.size(), b.nodetransform.size());
    for (auto const& [node, matrix] : a.nodetransform) {
        ASSERT_TRUE(b.nodetransform.contains(node));
        expectSameBits(matrix, b.nodetransform.at(node));
    }
}

/// A scene in some state: `tree` decides about the model, `state` about what has been done to it.
class Case
{
public:
    Case(std::uint32_t tree, std::uint32_t state) : scene(static_cast<int>(tree % 41), tree)
    {
        shareTransforms();
        scene.random.seed(state);
        auto const share = [this] { return static_cast<double>(scene.fraction()); };
        for (std::uint32_t round = scene.below(3); round > 0; --round) {
            scene.disturb({share(), share(), share(), share() / 2});
            move();
            clearSome();
        }
        scene.renderer->camera->eye = anyVector(scene.random);
        scene.renderer->camera->target = anyVector(scene.random);
        scene.renderer->camera->up = anyVector(scene.random);
        scene.renderer->camera->orthographic = scene.below(2) == 0;
    }

    Feed capture() const
    {
        SceneRecords records(scene.document);
        Feed feed;
        feed.comment.viewport = captureViewport(records);
        feed.comment.objects = captureObjects(records);
        return feed;
    }
    void restore(Feed const& feed) { restoreView(scene.document, feed); }

    orvtest::TreeScene scene;

private:
    /// Some nodes stand on one placement with another.
    void shareTransforms()
    {
        for (int node = 0; node < scene.nodeCount(); ++node) {
            if (scene.below(16) == 0) {
                scene.topology->transformOfNode.setValue(
                    node, static_cast<int>(scene.below(static_cast<std::uint32_t>(node) + 1)));
            }
        }
    }
    void move()
    {
        for (int node = 0; node < scene.nodeCount(); ++node) {
            if (scene.below(16) == 0) {
                orvsg::Transform placement;
                placement.matrix = anyMatrix(scene.random);
                placement.isSet = true;
                scene.resources->transforms.setValue(node, placement);
            }
        }
    }
    void clearSome()
    {
        for (int node = 0; node < scene.nodeCount(); ++node) {
            if (scene.below(4) == 0) {
                orvsgutils::MaterialUtils::clearNodeColor(node, scene.resources, scene.runtime, scene.topology);
                orvsgutils::MaterialUtils::clearNodeTransparency(node, scene.resources, scene.runtime, scene.topology);
            }
        }
    }
};

Feed writeAndRead(Feed const& feed)
{
    Json::Value element;
    element["Content"] = orvtext::toUtf8(FeedWriter().write(feed));
    Json::Value root(Json::arrayValue);
    root.append(element);
    auto const feeds = FeedReader().read(orvtext::fromUtf8(Json::writeString(Json::StreamWriterBuilder(), root)));
    EXPECT_EQ(feeds.size(), 1U);
    return feeds.empty() ? Feed() : feeds[0];
}

TEST(RoundTrip, BringsEveryViewBackBitForBit)
{
    for (std::uint32_t number = 0; number < caseCount && !testing::Test::HasFailure(); ++number) {
        SCOPED_TRACE("case " + std::to_string(number));
        Feed const captured = Case(number, number).capture();

        Feed const stored = writeAndRead(captured);
        expectSameCamera(stored.comment.viewport, captured.comment.viewport);
        expectSameNodes(stored.comment.objects, captured.comment.objects);

        Case other(number, number + caseCount);
        other.restore(stored);
        Feed const again = other.capture();
        expectSameCamera(again.comment.viewport, captured.comment.viewport);
        expectSameNodes(again.comment.objects, captured.comment.objects);
    }
}

TEST(RoundTrip, LosesTheDegreeOfTransparencyTheColoursByPositionAndTheZoomAndNothingElse)
{
    for (std::uint32_t number = 0; number < caseCount && !testing::Test::HasFailure(); ++number) {
        SCOPED_TRACE("case " + std::to_string(number));
        Case const first(number, number);
        Feed captured = first.capture();
        captured.comment.viewport.zoom = 7.0; // as another client may write it
        Feed const stored = writeAndRead(captured);
        EXPECT_TRUE(stored.comment.objects.colored.empty());
        EXPECT_EQ(stored.comment.viewport.zoom, 7.0);

        Case other(number, number + caseCount);
        orvgl::Camera const lens = *other.scene.renderer->camera;
        other.restore(stored);
        EXPECT_EQ(other.capture().comment.viewport.zoom, 1.0);
        EXPECT_EQ(other.scene.renderer->camera->orthographic, lens.orthographic) << "no record tells";
        EXPECT_EQ(other.scene.renderer->camera->fieldOfView, lens.fieldOfView);

        EXPECT_EQ(other.scene.runtime->visibility, first.scene.runtime->visibility);
        for (int node = 0; node < first.scene.nodeCount(); ++node) {
            SCOPED_TRACE("node " + std::to_string(node));
            orvsg::Material const was = first.scene.resources->materials.getValue(node);
            orvsg::Material expected = was;
            expected.transparency = was.isTransparent ? 0.5F : 0.0F;
            EXPECT_EQ(other.scene.resources->materials.getValue(node), expected);
            int const index = first.scene.topology->transformOfNode.getValue(node);
            orvsg::Transform const placement = first.scene.resources->transforms.getValue(index);
            orvsg::Transform const restored = other.scene.resources->transforms.getValue(index);
            expectSameBits(restored.matrix, placement.matrix);
            EXPECT_EQ(restored.isSet, placement.isSet);
        }
        FeedObjects const again = other.capture().comment.objects;
        EXPECT_EQ(again.colored, again.nodecolor.empty() ? std::vector<Vector3>() : captured.comment.objects.colored)
            << "the model gives them back";
    }
}

// The writer's text byte by byte beside what the library writes of a tree of values, set member by member.

Json::Value textOf(std::wstring const& text)
{
    return Json::Value(orvtext::toUtf8(text));
}

template <std::size_t N>
Json::Value numbersOf(orvmath::Tuple<float, N> const& tuple)
{
    Json::Value value;
    for (unsigned char i = 0; i < N; ++i) {
        value[static_cast<Json::ArrayIndex>(i)] = static_cast<double>(tuple[i]);
    }
    return value;
}

Json::Value treeOf(Feed const& feed)
{
    Json::Value root;
    root["author"]["id"] = textOf(feed.author.id);
    root["author"]["name"] = textOf(feed.author.name);
    root["author"]["email"] = textOf(feed.author.email);
    root["author"]["canDelete"] = feed.author.canDelete;
    root["author"]["canEdit"] = feed.author.canEdit;
    root["file"]["id"] = textOf(feed.file.id);
    root["file"]["name"] = textOf(feed.file.name);
    root["action"]["type"] = textOf(feed.action.type);
    root["action"]["value"] = textOf(feed.action.value);
    Json::Value& comment = root["commentcontent"];
    comment["id"] = textOf(feed.comment.id);
    comment["commentType"] = textOf(feed.comment.commentType);
    comment["content"] = textOf(feed.comment.content);
    comment["publishedTime"] = textOf(feed.comment.publishedTime);
    comment["updatedTime"] = textOf(feed.comment.updatedTime);
    comment["viewport"]["eye"] = numbersOf(feed.comment.viewport.eye);
    comment["viewport"]["target"] = numbersOf(feed.comment.viewport.target);
    comment["viewport"]["up"] = numbersOf(feed.comment.viewport.up);
    comment["viewport"]["zoom"] = feed.comment.viewport.zoom;
    FeedObjects const& objects = feed.comment.objects;
    for (Json::ArrayIndex i = 0; i < objects.transparent.size(); ++i) {
        comment["objects"]["transparent"][i] = objects.transparent[i];
    }
    for (Json::ArrayIndex i = 0; i < objects.hidden.size(); ++i) {
        comment["objects"]["hidden"][i] = objects.hidden[i];
    }
    for (auto const& [node, matrix] : objects.nodetransform) {
        comment["objects"]["nodetransform"][std::to_string(node)] = numbersOf(matrix);
    }
    for (auto const& [node, color] : objects.nodecolor) {
        comment["objects"]["nodecolor"][std::to_string(node)] = color;
    }
    root["source"] = textOf(feed.source);
    root["thumbnail"] = textOf(feed.thumbnail);
    return root;
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
std::string libraryText(Json::Value const& root)
{
    std::string text = Json::FastWriter().write(root);
    for (std::size_t at = text.find("null"); at != std::string::npos; at = text.find("null", at + 2)) {
        text.replace(at, 4, "[]");
    }
    return text;
}
#pragma GCC diagnostic pop

/// Text in which everything occurs that a writer could trip over.
std::wstring anyText(std::mt19937& random)
{
    static std::vector<std::wstring> const pieces = {L"a",
                                                     L"nul",
                                                     L"null",
                                                     L"l",
                                                     L"n",
                                                     L"\"",
                                                     L"\\",
                                                     L"\n",
                                                     L"\r\n",
                                                     L"\t",
                                                     L"/",
                                                     L"\x1F",
                                                     L"\x7F",
                                                     L"\x80",
                                                     L"\u00e9",
                                                     L"\u65e5",
                                                     L"\U0001f600",
                                                     std::wstring(1, L'\0'),
                                                     L" ",
                                                     L"ull",
                                                     L"[]",
                                                     L"\ufffd",
                                                     L"0.5",
                                                     L"{",
                                                     std::wstring(1, static_cast<wchar_t>(0xD800))};
    std::wstring text;
    for (auto count = random() % 8; count > 0; --count) {
        text += pieces[random() % pieces.size()];
    }
    return text;
}

int anyInt(std::mt19937& random)
{
    auto const value = static_cast<int>(static_cast<std::uint32_t>(random()));
    return random() % 2 == 0 ? value : value % 1000;
}

Feed anyFeed(std::mt19937& random)
{
    Feed feed;
    auto const text = [&random] { return anyText(random); };
    feed.author = FeedAuthor{text(), text(), text(), random() % 2 == 0, random() % 2 == 0};
    feed.file = FeedFile{text(), text()};
    feed.action = FeedAction{text(), text()};
    feed.comment.id = text();
    feed.comment.commentType = text();
    feed.comment.content = text();
    feed.comment.publishedTime = text();
    feed.comment.updatedTime = text();
    feed.comment.viewport = FeedViewport{anyVector(random), anyVector(random), anyVector(random),
                                         std::bit_cast<double>(std::uint64_t{random()} << 32U | random())};
    FeedObjects& objects = feed.comment.objects;
    for (auto count = random() % 6; count > 0; --count) {
        objects.hidden.push_back(anyInt(random));
    }
    for (auto count = random() % 6; count > 0; --count) {
        objects.transparent.push_back(anyInt(random));
    }
    for (auto count = random() % 12; count > 0; --count) {
        objects.nodecolor[anyInt(random)] = anyInt(random);
    }
    for (auto count = random() % 3; count > 0; --count) {
        Matrix4 matrix = anyMatrix(random);
        matrix[static_cast<unsigned char>(random() % 16)] = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        objects.nodetransform[anyInt(random)] = matrix;
    }
    if (random() % 2 == 0) {
        objects.colored = {Vector3(1, 0, 0)};
    }
    feed.source = text();
    feed.thumbnail = text();
    return feed;
}

TEST(WrittenText, IsTheLibrarysByteForByte)
{
    for (std::uint32_t number = 0; number < caseCount && !testing::Test::HasFailure(); ++number) {
        SCOPED_TRACE("case " + std::to_string(number));
        std::mt19937 random(number);
        Feed const feed = anyFeed(random);
        EXPECT_EQ(orvtext::toUtf8(FeedWriter().write(feed)), libraryText(treeOf(feed)));
    }
}

} // namespace
