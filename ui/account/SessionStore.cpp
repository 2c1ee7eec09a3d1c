#include "ui/account/SessionStore.h"

#include "host/orv/FileUtils.h"
#include "host/orvweb/Directories.h"
#include "platform/text/Text.h"
#include "service/RequestFile.h"
#include "ui/account/ByteCodecvt.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <system_error>

namespace
{

/// Not from the wide text, which the library would convert by the "C" locale: a user's name need not be ASCII.
std::filesystem::path nativePath(SessionFile const& session)
{
    return orvtext::toUtf8(session.path());
}

/// Every reader tests whether the file opens, closes it, and opens it a second time for the lines. What the test found
/// is the answer: a file that goes in between leaves the lines alone.
bool readLines(SessionFile const& session, std::initializer_list<std::wstring*> lines)
{
    if (!session.canOpen()) {
        return false;
    }
    std::wifstream file;
    file.imbue(byteLocale());
    file.open(nativePath(session));
    if (file.is_open()) {
        for (std::wstring* const line : lines) {
            std::getline(file, *line);
        }
    }
    return true;
}

void writeLines(SessionFile const& session, std::initializer_list<std::wstring const*> lines)
{
    if (!session.canOpen()) {
        session.createEmpty(); // a stream would make it readable for others
    }
    std::wofstream file;
    file.imbue(byteLocale());
    // Unbuffered: what stands before a character that has no byte is in the file by then, and only once.
    file.rdbuf()->pubsetbuf(nullptr, 0);
    file.open(nativePath(session));
    for (std::wstring const* const line : lines) {
        file << *line << std::endl;
    }
}

} // namespace

SessionFile::SessionFile()
    : folder(orvweb::Directories::GetUserDirectoryDetails(L"Cloud", L"")),
      filePath(orv::FileUtils::join(folder, L"temp"))
{
}

bool SessionFile::canOpen() const
{
    // A stream opens a directory as well, and waits at a pipe.
    std::filesystem::path const file = nativePath(*this);
    std::error_code missing;
    return std::filesystem::is_regular_file(file, missing) && std::wifstream(file).is_open();
}

bool SessionFile::read(orvweb::UserInfo& user) const
{
    return readLines(*this, {&user.username, &user.userid, &user.name});
}

bool SessionFile::readTwo(orvweb::UserInfo& user) const
{
    return readLines(*this, {&user.username, &user.userid});
}

bool SessionFile::readFirst(std::wstring& username) const
{
    return readLines(*this, {&username});
}

void SessionFile::write(std::wstring const& username, std::wstring const& userid) const
{
    writeLines(*this, {&username, &userid});
}

void SessionFile::write(std::wstring const& username, std::wstring const& userid, std::wstring const& name) const
{
    writeLines(*this, {&username, &userid, &name});
}

void SessionFile::createEmpty() const
{
    createEmptyFile(filePath);
}

void SessionFile::remove() const
{
    DeleteFileW(filePath.c_str());
}

void SessionFile::removeDirectory() const
{
    RemoveDirectoryW(folder.c_str());
}
