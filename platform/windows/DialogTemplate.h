#pragma once
// Dialog templates, extended and classic, after their documented layouts (DLGTEMPLATEEX, DLGTEMPLATE).

#include "ByteReader.h"
#include "windef.h"

#include <optional>
#include <string>
#include <vector>

namespace orvplatform
{
// Rectangles are in dialog units.
struct DialogItem {
    DWORD style = 0;
    DWORD exStyle = 0;
    int x = 0, y = 0, width = 0, height = 0;
    int id = 0; // -1 for controls without one
    std::wstring className;
    std::wstring text;
    std::uint16_t resource = 0; // a picture's resource in place of a text
    Bytes creationData;         // without its length
};

struct DialogTemplate {
    DWORD style = 0;
    DWORD exStyle = 0;
    int x = 0, y = 0, width = 0, height = 0;
    std::wstring caption;
    std::wstring face; // empty: the template names no font
    int points = 8;
    int weight = 400;
    bool italic = false;
    std::vector<DialogItem> items;
};

// Empty when the bytes are no template or end before it does. The result points into the bytes.
std::optional<DialogTemplate> readDialogTemplate(Bytes bytes);
} // namespace orvplatform
