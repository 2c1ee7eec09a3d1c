// Who may include what: plug-in -> host contract + platform -> nothing above. Every source file of the tree is walked,
// and an include that breaks a rule is reported with its file and line.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <regex>
#include <string>
#include <vector>

namespace
{

namespace fs = std::filesystem;

struct Include {
    std::string file; // relative to the root
    int line = 0;
    std::string target; // what stands between the quotes or brackets
};

bool startsWith(std::string const& text, std::string const& prefix)
{
    return text.rfind(prefix, 0) == 0;
}

bool liesIn(std::string const& path, std::vector<std::string> const& folders)
{
    for (auto const& folder : folders) {
        if (startsWith(path, folder + "/")) {
            return true;
        }
    }
    return false;
}

std::vector<Include> includesBelow(fs::path const& root, std::vector<std::string> const& folders)
{
    static std::regex const pattern(R"(^\s*#\s*include\s*[<"]([^>"]+)[>"])");
    std::vector<Include> found;
    for (auto const& folder : folders) {
        if (!fs::exists(root / folder)) {
            continue;
        }
        for (auto const& entry : fs::recursive_directory_iterator(root / folder)) {
            auto const extension = entry.path().extension();
            if (extension != ".h" && extension != ".cpp") {
                continue;
            }
            std::ifstream stream(entry.path());
            std::string text;
            for (int line = 1; std::getline(stream, text); ++line) {
                std::smatch match;
                if (std::regex_search(text, match, pattern)) {
                    // A path through ".." is a path all the same.
                    found.push_back({fs::relative(entry.path(), root).string(), line,
                                     fs::path(match[1].str()).lexically_normal().string()});
                }
            }
        }
    }
    return found;
}

bool isQt(std::string const& target)
{
    // <QString>, <QtCore>, <QtWidgets/QWidget>, <qwidget.h>, but not a header of ours that begins with a "Q".
    static std::regex const pattern(R"(^Q[A-Z][A-Za-z0-9]*$|^Qt[A-Z]\w*(/.*)?$|^q[a-z_0-9]+\.h$)");
    return std::regex_match(target, pattern);
}

bool isOpenCascade(std::string const& target)
{
    static std::regex const pattern(R"(^(opencascade/)?[A-Za-z][A-Za-z0-9]*(_[A-Za-z0-9]+)*\.(hxx|lxx|gxx)$)");
    return std::regex_match(target, pattern);
}

bool isCurl(std::string const& target)
{
    return startsWith(target, "curl/");
}

/// What the plug-in may include: itself, the host contract, the texts of platform/, the toolkit and the system calls
/// that platform/ offers by their own names, JsonCpp, and the standard library.
bool isOpenToThePlugin(std::string const& target)
{
    static std::regex const standard(R"(^[a-z_0-9]+$)"); // <memory>, <vector>, <cstdint>
    fs::path const root(ORV_SOURCE_DIR);
    return liesIn(target, {"shell", "service", "feed", "ui", "host", "platform/text"}) || startsWith(target, "json/") ||
           std::regex_match(target, standard) || target == "BuildSettings.h" ||
           fs::exists(root / "platform/windows" / target) || fs::exists(root / "platform/mfc" / target);
}

std::vector<std::string> const pluginFolders{"shell", "service", "feed", "ui"};
std::vector<std::string> const productFolders{"platform", "host",      "shell", "service", "feed", "ui",
                                              "viewer",   "exporters", "cloud", "samples", "tour"};

struct Rule {
    std::string sentence;
    std::function<bool(Include const&)> breaks;
};

std::vector<Rule> rules()
{
    return {
        {"the plug-in includes headers of itself, host/, platform/ and JsonCpp alone",
         [](Include const& i) { return liesIn(i.file, pluginFolders) && !isOpenToThePlugin(i.target); }},
        {"only platform/, viewer/ and the tour that drives it know Qt",
         [](Include const& i) {
             return isQt(i.target) && !liesIn(i.file, {"platform", "viewer", "tour"});
         }},
        {"the headers of the toolkit and of the system calls show no Qt",
         [](Include const& i) {
             return isQt(i.target) && liesIn(i.file, {"platform/mfc", "platform/windows", "platform/text"}) &&
                    i.file.ends_with(".h");
         }},
        {"only viewer/, exporters/ and samples/ know Open CASCADE",
         [](Include const& i) {
             return isOpenCascade(i.target) && !liesIn(i.file, {"viewer", "exporters", "samples"});
         }},
        {"only host/ and the service's mailer know libcurl",
         [](Include const& i) {
             return isCurl(i.target) && !liesIn(i.file, {"host", "cloud/mail"});
         }},
        {"platform/ knows nothing above it",
         [](Include const& i) {
             return liesIn(i.file, {"platform"}) &&
                    liesIn(i.target, {"host", "shell", "service", "feed", "ui", "viewer", "exporters", "cloud",
                                      "samples", "tour"});
         }},
        {"host/ knows platform/ alone",
         [](Include const& i) {
             return liesIn(i.file, {"host"}) && liesIn(i.target, {"shell", "service", "feed", "ui", "viewer",
                                                                  "exporters", "cloud", "samples", "tour"});
         }},
        {"the viewer knows the plug-in by its contract alone",
         [](Include const& i) {
             return liesIn(i.file, {"viewer", "exporters"}) &&
                    liesIn(i.target, {"shell", "service", "feed", "ui", "cloud"});
         }},
        {"exporters/ and samples/ stand beside the viewer, and the bridge to Qt is for the viewer and the tour",
         [](Include const& i) {
             return (liesIn(i.file, {"exporters"}) && liesIn(i.target, {"viewer", "samples", "tour"})) ||
                    (liesIn(i.file, {"samples"}) &&
                     liesIn(i.target, {"viewer", "exporters", "host", "platform", "tour"})) ||
                    (liesIn(i.file, {"viewer"}) && liesIn(i.target, {"exporters", "samples", "tour", "tests"})) ||
                    (liesIn(i.file, {"host", "exporters", "samples"}) && liesIn(i.target, {"platform/qt"})) ||
                    startsWith(i.target, "..");
         }},
        {"the service shares no code with the rest",
         [](Include const& i) {
             return liesIn(i.file, {"cloud"}) && liesIn(i.target, {"platform", "host", "shell", "service", "feed", "ui",
                                                                   "viewer", "exporters", "samples", "tour"});
         }},
    };
}

TEST(Layering, HoldsForEveryInclude)
{
    auto const includes = includesBelow(ORV_SOURCE_DIR, productFolders);
    ASSERT_GT(includes.size(), 500U) << "The walk found too few includes to mean anything.";
    for (auto const& rule : rules()) {
        for (auto const& include : includes) {
            EXPECT_FALSE(rule.breaks(include)) << include.file << ":" << include.line << " includes \""
                                               << include.target << "\", but " << rule.sentence << ".";
        }
    }
}

// The rules themselves are tried on lines that must fail and lines that must pass, so that a rule can't fall asleep.
TEST(Layering, RulesSeeWhatTheyForbid)
{
    auto const broken = [](Include const& include) {
        for (auto const& rule : rules()) {
            if (rule.breaks(include)) {
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(broken({"feed/FeedReader.cpp", 1, "QString"}));
    EXPECT_TRUE(broken({"ui/feed/FeedPane.cpp", 1, "QtWidgets/QWidget"}));
    EXPECT_TRUE(broken({"shell/cloudplugin.cpp", 1, "TopoDS_Shape.hxx"}));
    EXPECT_TRUE(broken({"service/CloudHelper.cpp", 1, "curl/curl.h"}));
    EXPECT_TRUE(broken({"service/CloudHelper.cpp", 1, "viewer/app/MainWindow.h"}));
    EXPECT_TRUE(broken({"ui/feed/FeedPane.cpp", 1, "platform/qt/Native.h"}));
    EXPECT_TRUE(broken({"feed/FeedReader.cpp", 1, "sqlite3.h"}));
    EXPECT_TRUE(broken({"feed/FeedReader.cpp", 1, "unistd.h"}));
    EXPECT_TRUE(broken({"host/orv/Mail.cpp", 1, "QtCore"}));
    EXPECT_TRUE(broken({"host/orv/Mail.cpp", 1, "QtGlobal"}));
    EXPECT_TRUE(broken({"host/orvgl/CameraHelper.cpp", 1, "gp_Pnt.hxx"}));
    EXPECT_TRUE(broken({"host/orv/Mail.cpp", 1, "QProcess"}));
    EXPECT_TRUE(broken({"platform/mfc/CWnd.h", 1, "QWidget"}));
    EXPECT_TRUE(broken({"platform/mfc/CWnd.cpp", 1, "host/orv/GUID.h"}));
    EXPECT_TRUE(broken({"viewer/app/MainWindow.cpp", 1, "shell/cloudplugin.h"}));
    EXPECT_TRUE(broken({"cloud/store/Store.h", 1, "host/orv/GUID.h"}));
    EXPECT_TRUE(broken({"host/orv/Mail.cpp", 1, "platform/qt/Native.h"}));
    EXPECT_TRUE(broken({"exporters/prc/Scene.h", 1, "viewer/app/MainWindow.h"}));
    EXPECT_TRUE(broken({"viewer/app/MainWindow.cpp", 1, "exporters/prc/Scene.h"}));
    EXPECT_TRUE(broken({"samples/Solids.cpp", 1, "host/orv/GUID.h"}));
    EXPECT_TRUE(broken({"cloud/store/Store.h", 1, "../host/orv/GUID.h"}));

    EXPECT_FALSE(broken({"feed/FeedReader.cpp", 1, "json/json.h"}));
    EXPECT_FALSE(broken({"ui/feed/FeedPane.cpp", 1, "afxwin.h"}));
    EXPECT_FALSE(broken({"viewer/scene/SceneView.cpp", 1, "V3d_View.hxx"}));
    EXPECT_FALSE(broken({"viewer/app/MainWindow.cpp", 1, "QMainWindow"}));
    EXPECT_FALSE(broken({"host/orvweb/CurlTransport.cpp", 1, "curl/curl.h"}));
}

} // namespace
