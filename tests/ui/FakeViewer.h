#pragma once

#include "host/orv/IApplication.h"
#include "host/orvexp/IDelayExporter.h"
#include "host/orvui/Hint.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvtest
{

/// Delivers hints to one listener and keeps their codes.
class FakeNotifier final : public orv::IViewNotifier
{
public:
    void notify(orvui::Hint& hint) override
    {
        codes.push_back(hint.getCode());
        documents.push_back(hint.getDocument().get());
        if (deliver) {
            deliver(&hint);
        }
    }

    std::vector<short> codes;
    std::vector<orv::IDocument*> documents; ///< only to be compared
    std::function<void(orv::IHint*)> deliver;
};

class FakeStatusManager final : public orv::IStatusManager
{
public:
    void setProgress(int const& percent, int) override { percentages.push_back(percent); }
    void showProgress(int on, int) override { shown.push_back(on); }

    std::vector<int> percentages;
    std::vector<int> shown;
};

/// Keeps what the plug-in says to the user and asks to be saved.
class FakeApplication final : public orv::IApplication
{
public:
    void saveFile(wchar_t const* path, orv::SaveCompletion completed) override
    {
        saved.emplace_back(path);
        if (completed) {
            completed(&saveStatus, path, this);
        }
    }
    void showStatus(wchar_t const* text, int kind) override
    {
        texts.emplace_back(text);
        EXPECT_EQ(kind, 0); // every text of the plug-in is of the one kind
        if (onStatus) {
            onStatus();
        }
    }
    std::shared_ptr<orv::IViewNotifier> getViewNotifier() override { return notifier; }
    orv::IStatusManager* getStatusManager() override { return &status; }

    std::wstring lastText() const { return texts.empty() ? std::wstring() : texts.back(); }

    std::vector<std::wstring> texts;
    std::vector<std::wstring> saved;
    int saveStatus = 0;
    std::function<void()> onStatus; ///< called when a text has been shown
    std::shared_ptr<FakeNotifier> notifier = std::make_shared<FakeNotifier>();
    FakeStatusManager status;
};

/// Writes a few bytes in place of a model.
class FakeExporter final : public orvexp::IDelayExporter
{
public:
    orvexp::Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const&, std::shared_ptr<orv::Preferences>,
                        orv::IStatusManager*) override
    {
        paths.emplace_back(path);
        std::ofstream(std::filesystem::path(path), std::ios::binary) << "PRC";
        return orvexp::Status::ok;
    }

    std::vector<std::wstring> paths;
};

} // namespace orvtest
