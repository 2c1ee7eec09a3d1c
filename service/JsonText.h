#pragma once

#include <json/json.h>

#include <string>
#include <string_view>

// Reading and writing of JSON texts, for the whole plug-in. What counts as JSON, and the exact text that the service
// stores and compares, are those of the library's first reader and writer; its newer ones take and write other texts.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

/// False where the text (UTF-8) isn't JSON. Comments in it are collected. Throws the library's exception for a text
/// that is nested too deeply.
inline bool parseJson(std::string_view text, Json::Value& root)
{
    return Json::Reader().parse(text.data(), text.data() + text.size(), root, true);
}

/// One line of plain ASCII with one line feed at its end; members in ascending order of their names.
inline std::string writeJson(Json::Value const& root)
{
    return Json::FastWriter().write(root);
}

#pragma GCC diagnostic pop
