#pragma once

#include "host/orvweb/UserInfo.h"

#include <string>

/// The file that remembers who is signed in. As long as it can be opened, a user counts as signed in, even if it is
/// empty. It holds up to three lines: the e-mail address, the login token, the display name; one byte a character
/// (U+0000 to U+00FF). Make one for each use: the path is worked out anew each time.
class SessionFile
{
public:
    SessionFile();

    std::wstring const& path() const { return filePath; }
    std::wstring const& directory() const { return folder; } ///< without a closing separator

    /// One open and one close; nothing is read. A directory of that name is no session.
    bool canOpen() const;

    /// The reads ask canOpen first, and give false and change nothing where it says no; then they open the file again
    /// for the lines. The first line that is missing empties its field and leaves the fields behind it alone.
    bool read(orvweb::UserInfo& user) const;    ///< username, userid, name
    bool readTwo(orvweb::UserInfo& user) const; ///< username, userid
    bool readFirst(std::wstring& username) const;

    /// The writes replace the file. A character that has no byte ends the text there; nothing is reported.
    void write(std::wstring const& username, std::wstring const& userid) const;
    void write(std::wstring const& username, std::wstring const& userid, std::wstring const& name) const;

    /// Leaves at the path a file that the user alone may read, or none: what is no file there, a pipe for one, goes.
    void makePrivate() const;
    void createEmpty() const;     ///< whoever was signed in is so no longer
    void remove() const;          ///< nothing happens where there is none
    void removeDirectory() const; ///< fails silently while other files lie in it; it is made again on demand

private:
    std::wstring folder;
    std::wstring filePath;
};
