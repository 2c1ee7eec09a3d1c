#include "ui/account/SessionStore.h"

#include "host/orv/FileUtils.h"
#include "host/orvweb/Directories.h"
#include "platform/text/Text.h"
#include "service/RequestFile.h"

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
    std::ifstream file(nativePath(session), std::ios::binary);
    if (file.is_open()) {
        for (std::wstring* const line : lines) {
            std::string bytes;
            bool const isFound = static_cast<bool>(std::getline(file, bytes));
            *line = orvtext::widenBytes(bytes); // empty where nothing was found
            if (!isFound) {
                break;
            }
        }
    }
    return true;
}

/// The bytes of a field up to the first character that has none.
std::string bytesOf(std::wstring const& field)
{
    constexpr wchar_t lastByte = L'\u00ff';
    std::string bytes;
    bytes.reserve(field.size() + 1); // for the line end
    for (wchar_t const character : field) {
        if (character < L'\0' || character > lastByte) {
            break;
        }
        bytes.push_back(static_cast<char>(character));
    }
    return bytes;
}

/// A line goes out whole and at once: an answer that fills memory in place of a token must not hold up the window with
/// a system call a character.
void writeLines(SessionFile const& session, std::initializer_list<std::wstring const*> fields)
{
    session.makePrivate();
    if (!session.canOpen()) {
        session.createEmpty(); // a stream would make it readable for others
    }
    std::ofstream file(nativePath(session), std::ios::binary);
    for (std::wstring const* const field : fields) {
        std::string line = bytesOf(*field);
        bool const isWhole = line.size() == field->size();
        if (isWhole) {
            line.push_back('\n');
        }
        file.write(line.data(), static_cast<std::streamsize>(line.size())).flush();
        if (!isWhole) {
            return;
        }
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
    return std::filesystem::is_regular_file(file, missing) && std::ifstream(file).is_open();
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
    makePrivate();
    createEmptyFile(filePath);
}

void SessionFile::makePrivate() const
{
    std::filesystem::path const file = nativePath(*this);
    std::error_code error;
    switch (std::filesystem::status(file, error).type()) {
    case std::filesystem::file_type::regular:
        // The rights of a file that was there stay through everything that is written to it.
        std::filesystem::permissions(file, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write,
                                     error);
        break;
    case std::filesystem::file_type::not_found:
    case std::filesystem::file_type::none: // can't be looked at
        break;
    default:
        remove(); // a pipe would be waited at for ever; a directory stays
    }
}

void SessionFile::remove() const
{
    DeleteFileW(filePath.c_str());
}

void SessionFile::removeDirectory() const
{
    RemoveDirectoryW(folder.c_str());
}
