#include "cloud/mail/Invitation.h"

#include "cloud/base/Secret.h"
#include "cloud/base/Text.h"

#include <string_view>

namespace orvcloud
{
namespace
{
/// An unstructured text as encoded words, cut between characters. `column` is where the first one begins; no line is
/// longer than 76 characters (RFC 2047, section 2).
std::string encodedWords(std::string_view text, std::size_t column)
{
    constexpr std::string_view begin = "=?UTF-8?B?";
    constexpr std::string_view end = "?=";
    std::string result;
    while (!text.empty()) {
        const std::size_t room = 76 - column - begin.size() - end.size();
        const std::string_view word = cut(text, room / 4 * 3);
        result.append(result.empty() ? "" : "\r\n ").append(begin).append(base64(word)).append(end);
        text.remove_prefix(word.size());
        column = 1;
    }
    return result;
}

std::string wrapped(const std::string& encoded)
{
    constexpr std::size_t lineLength = 76;
    std::string result;
    for (std::size_t i = 0; i < encoded.size(); i += lineLength)
        result += encoded.substr(i, lineLength) + "\r\n";
    return result;
}
} // namespace

std::string invitationMail(const Invitation& invitation, std::int64_t now)
{
    std::string text = invitation.inviterName + " (" + invitation.inviterAddress + ") has shared the model \"" +
                       invitation.modelName + "\" with you.\r\n\r\n";
    if (!invitation.message.empty())
        text += invitation.message + "\r\n\r\n";
    text += "To see its comments and add your own, open the model in Orvanta and sign in with this address. More is "
            "told here:\r\n" +
            invitation.link + "\r\n";
    const auto at = invitation.sender.find('@');
    return "Date: " + formattedTime(now, "%a, %d %b %Y %H:%M:%S +0000") +
           "\r\nFrom: " + encodedWords("Orvanta Cloud", std::string_view("From: ").size()) + "\r\n <" +
           invitation.sender + ">\r\nReply-To: <" + invitation.inviterAddress + ">\r\nTo: <" + invitation.recipient +
           ">\r\nSubject: " +
           encodedWords(invitation.inviterName + " has shared " + invitation.modelName + " with you",
                        std::string_view("Subject: ").size()) +
           "\r\nMessage-ID: <" + randomUuid() + invitation.sender.substr(at) +
           ">\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=utf-8\r\nContent-Transfer-Encoding: "
           "base64\r\n\r\n" +
           wrapped(base64(text));
}

} // namespace orvcloud
