#pragma once

#include "host/orv/IApplication.h"

#include <memory>
#include <string>
#include <vector>

namespace orvtest
{

/// What a completion function was told.
struct SaveOutcome {
    int status = 0;
    std::wstring path;
    orv::IApplication* application = nullptr;

    SaveOutcome(int outcome, std::wstring file, orv::IApplication* told)
        : status(outcome), path(std::move(file)), application(told)
    {
    }
    SaveOutcome(int outcome, std::wstring file, std::shared_ptr<orv::IApplication> const& told)
        : SaveOutcome(outcome, std::move(file), told.get())
    {
    }
    bool operator==(SaveOutcome const&) const = default;
};

/// Takes what saves tell their completion functions, one entry a call.
struct SaveOutcomes {
    std::vector<SaveOutcome> told;

    orv::SaveCompletion completion()
    {
        return [this](int const* status, wchar_t const* path, orv::IApplication* application) {
            told.emplace_back(*status, path, application);
        };
    }
};

} // namespace orvtest
