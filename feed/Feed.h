#pragma once

#include "host/orvmath/Tuple.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

/// One entry of a model's feed, with the view in which it was written. Plain values, copied at each hand-over.

using Vector3 = orvmath::Tuple<float, 3>;
using Matrix4 = orvmath::Tuple<float, 16>; ///< column by column, as in orvsg::Transform

/// Who wrote the entry.
struct FeedAuthor {
    std::wstring id;
    std::wstring name;
    std::wstring email;
    bool canDelete = false; ///< carried through; the interface decides by the e-mail address
    bool canEdit = false;   ///< carried through

    FeedAuthor() = default;
    FeedAuthor(std::wstring authorId, std::wstring authorName, std::wstring authorEmail, bool mayDelete, bool mayEdit)
        : id(std::move(authorId)), name(std::move(authorName)), email(std::move(authorEmail)), canDelete(mayDelete),
          canEdit(mayEdit)
    {
    }
    bool operator==(FeedAuthor const&) const = default;
};

/// The model file that the entry belongs to.
struct FeedFile {
    std::wstring id;   ///< the service's id of the file, at least 36 characters
    std::wstring name; ///< file name with extension

    FeedFile() = default;
    FeedFile(std::wstring fileId, std::wstring fileName) : id(std::move(fileId)), name(std::move(fileName)) {}
    bool operator==(FeedFile const&) const = default;
};

/// The camera: points in millimetres of model space.
struct FeedViewport {
    Vector3 eye;
    Vector3 target;
    Vector3 up;
    double zoom = 0.0; ///< carried through; the camera alone brings a view back

    FeedViewport() = default;
    FeedViewport(Vector3 const& eyePoint, Vector3 const& targetPoint, Vector3 const& upVector, double zoomFactor)
        : eye(eyePoint), target(targetPoint), up(upVector), zoom(zoomFactor)
    {
    }
    bool operator==(FeedViewport const&) const = default;
};

/// What the nodes looked like. A node is its index in SCSceneTopo; nothing promises that it fits the open model.
struct FeedObjects {
    std::vector<Vector3> colored; ///< indexed by node: red, green, blue in 0..1; all zero means no colour of its own
    std::vector<int> transparent;
    std::vector<int> hidden;
    std::map<int, Matrix4> nodetransform; ///< moved nodes and their placements relative to the parent
    std::map<int, int> nodecolor;         ///< packed colour: red in bits 0-7, green in 8-15, blue in 16-23

    FeedObjects() = default;
    FeedObjects(std::vector<Vector3> colorOfNode, std::vector<int> transparentNodes, std::vector<int> hiddenNodes,
                std::map<int, Matrix4> transformOfNode, std::map<int, int> packedColorOfNode)
        : colored(std::move(colorOfNode)), transparent(std::move(transparentNodes)), hidden(std::move(hiddenNodes)),
          nodetransform(std::move(transformOfNode)), nodecolor(std::move(packedColorOfNode))
    {
    }
    bool operator==(FeedObjects const&) const = default;
};

/// The text of the entry, its times and its view.
struct FeedComment {
    std::wstring id;            ///< the text of a GUID without its braces
    std::wstring commentType;   ///< "text"; "auto" marks an automatic entry, which restores no view
    std::wstring content;       ///< what the user wrote
    std::wstring publishedTime; ///< shown as it stands, never parsed
    std::wstring updatedTime;   ///< carried through
    FeedViewport viewport;
    FeedObjects objects;

    FeedComment() = default;
    FeedComment(std::wstring commentId, std::wstring type, std::wstring text, std::wstring published,
                std::wstring updated, FeedViewport const& view, FeedObjects nodes)
        : id(std::move(commentId)), commentType(std::move(type)), content(std::move(text)),
          publishedTime(std::move(published)), updatedTime(std::move(updated)), viewport(view),
          objects(std::move(nodes))
    {
    }
    bool operator==(FeedComment const&) const = default;
};

/// What a click on an automatic entry does.
struct FeedAction {
    std::wstring type;  ///< "view"; "download" offers an output of the model
    std::wstring value; ///< the output: "3ds", "obj", "stl", "pdf", "csv" or "bompdf"

    FeedAction() = default;
    FeedAction(std::wstring actionType, std::wstring actionValue)
        : type(std::move(actionType)), value(std::move(actionValue))
    {
    }
    bool operator==(FeedAction const&) const = default;
};

struct Feed {
    FeedAuthor author;
    FeedFile file;
    FeedComment comment;
    FeedAction action;
    std::wstring source;    ///< where the entry was made: "desktop" or "web"
    std::wstring thumbnail; ///< a data URI with base64 image data, or empty; see feed/Thumbnail.h

    Feed() = default;
    Feed(FeedAuthor feedAuthor, FeedFile feedFile, FeedComment feedComment, FeedAction feedAction,
         std::wstring feedSource, std::wstring feedThumbnail)
        : author(std::move(feedAuthor)), file(std::move(feedFile)), comment(std::move(feedComment)),
          action(std::move(feedAction)), source(std::move(feedSource)), thumbnail(std::move(feedThumbnail))
    {
    }
    bool operator==(Feed const&) const = default;
};
