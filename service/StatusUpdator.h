#pragma once

#include "host/orv/IStatusUpdator.h"

#include <string>
#include <utility>

/// Collects the answer to a request. It is also the end of the line for transfer progress: what the user sees of an
/// upload has a fixed course of its own (CloudHelper).
class StatusUpdator final : public orv::IStatusUpdator
{
public:
    void updateResponse(int kind, std::wstring const& text) override; ///< a later answer replaces an earlier one
    void updateProgress(int kind, int const& percent) override;       ///< shows nothing

    std::wstring getResponse() const& { return response; }        ///< empty until an answer came
    std::wstring getResponse() && { return std::move(response); } ///< of one that is done: no copy of a long answer

private:
    std::wstring response;
};
