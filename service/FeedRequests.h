#pragma once

#include <string>

/// The requests for the account and the feed. Each blocks until the service has answered and returns the answer as it
/// came; a failed request returns an empty text. `username` and `userid` are those of orvweb::UserInfo; `filename` is
/// the model's name with its extension (modelName).

/// A JSON object with the account's data; see service/AccountName.h.
std::wstring accountInfo(std::wstring const& username, std::wstring const& userid);

/// The model's job id (isJobId), or a shorter text where the service doesn't have the file.
std::wstring isFilePresent(std::wstring const& username, std::wstring const& userid, std::wstring const& filename);

/// The feed's JSON text, for FeedReader. The model's path isn't sent.
std::wstring getFeed(std::wstring const& username, std::wstring const& userid, std::wstring const& filePath,
                     std::wstring const& jobid);

/// Stores a comment, `comment` being the text of FeedWriter. Plus signs travel as "%2b".
std::wstring addFeed(std::wstring const& username, std::wstring const& userid, std::wstring const& filename,
                     std::wstring const& commentid, std::wstring const& comment, std::wstring const& jobid);

/// Deletes a comment. The third text isn't sent.
std::wstring deleteFeed(std::wstring const& username, std::wstring const& userid, std::wstring const& unused,
                        std::wstring const& commentid, std::wstring const& jobid);
