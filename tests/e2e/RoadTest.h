#pragma once

#include "tour/Driver.h"
#include "tour/ServiceProcess.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <memory>
#include <string>
#include <vector>

/// The real viewer library, the plug-in from its file, and the real service with a database of its own, for one test.
/// Every warning of the toolkit and every unexpected dialog fails the test.
class RoadTest : public testing::Test
{
protected:
    RoadTest();
    ~RoadTest() override;

    /// Starts the service with one account.
    void startService();
    /// A viewer on the service (or on another address), its window on the screen.
    std::unique_ptr<orvtour::Driver> startViewer(QString const& url = {}, std::wstring const& language = L"en");
    /// Tries to sign in, and expects the words of a failed login, the dialog open with what was typed, and no session.
    void expectLoginToFail(orvtour::Driver& driver);
    /// A user's folder need not have a name in ASCII.
    QString viewerData() const { return data.filePath(QString::fromUtf8("Zo\u00eb \u6b6f\u8eca")); }
    QString sessionFile() const { return viewerData() + "/Cloud/temp"; }
    static std::wstring sampleModel();

    /// Keeps two pictures beside the test's output where they should have been alike, and says where.
    static std::string keepPictures(QImage const& expected, QImage const& actual);

    QString const email = "ann@example.com";
    QString const password = "planet carrier 42";
    QTemporaryDir data;
    std::unique_ptr<orvtour::ServiceProcess> service;
};

std::ostream& operator<<(std::ostream& stream, QString const& text);
