#include "viewer/app/Barrier.h"

#include "platform/text/Text.h"
#include "viewer/app/Language.h"

namespace orvviewer
{

void Barrier::caught(std::string const& what) const
{
    auto sentence = localized("The action was broken off by an unexpected error. Try again.").toStdWString();
    if (!what.empty()) {
        sentence += L" (" + orvtext::fromUtf8(what.substr(0, what.find_first_of("\r\n"))) + L")";
    }
    tell(sentence);
}

} // namespace orvviewer
