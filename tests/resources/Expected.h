#pragma once
// What the plug-in's resources have to hold, language by language.

#include "resources/ElfSection.h"
#include "resources/ResFile.h"

#include <array>
#include <stdexcept>
#include <string>

namespace restest
{

enum DialogKind { SignIn, Settings, Share, Prompt, Block, Toolbar, AddComment, DialogKindCount };

struct Language {
    const char* code;
    unsigned tag;
    std::array<unsigned, DialogKindCount> dialogs; // template id of each kind
    const char* submit;                            // label of the comment box's button
};

inline constexpr std::array<Language, 8> languages{{
    {"en", 1033, {101, 106, 108, 115, 203, 206, 207}, "Submit"},
    {"fr", 1036, {122, 172, 179, 293, 286, 300, 279}, "Soumettre"},
    {"de", 1031, {123, 173, 180, 294, 287, 301, 280}, "einreichen"},
    {"ja", 1041, {124, 174, 181, 295, 288, 302, 281}, "提出する"},
    {"ko", 1042, {125, 175, 182, 296, 289, 303, 282}, "제출"},
    {"zh", 2052, {126, 176, 183, 297, 290, 304, 283}, "提交"},
    {"es", 1034, {127, 177, 184, 298, 291, 305, 284}, "Enviar"},
    {"pt", 1046, {128, 178, 185, 299, 292, 306, 285}, "Enviar"},
}};

inline constexpr unsigned english = 1033;

// The resources that the built library carries, read once.
inline const std::vector<Resource>& resources()
{
    static const std::vector<Resource> all = readResFile(sectionOf(readFile(ORV_PLUGIN_FILE), ".rsrc.orvanta").value());
    return all;
}

inline Dialog dialogOf(const Language& language, DialogKind kind)
{
    const unsigned id = language.dialogs.at(kind);
    const Resource* resource = find(resources(), typeDialog, id, language.tag);
    if (!resource) {
        throw std::runtime_error("no dialog " + std::to_string(id) + " in " + language.code);
    }
    return readDialog(resource->data);
}

inline std::string textOf(const Control& control)
{
    return utf8(std::get<std::u16string>(control.text));
}

} // namespace restest
