#include "service/StatusUpdator.h"

#include <cwchar>
#include <iterator>

void StatusUpdator::updateResponse(int /*kind*/, std::wstring const& text)
{
    if (&text != &response) {
        response = text;
    }
}

void StatusUpdator::updateProgress(int kind, int const& percent)
{
    wchar_t buffer[1024];
    std::swprintf(buffer, std::size(buffer),
                  kind == 0 ? L"%d%% File uploaded to server" : L"%d%% File downloaded from server", percent);
}
