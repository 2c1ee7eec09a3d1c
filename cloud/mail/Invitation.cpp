#include "cloud/mail/Invitation.h"

#include "cloud/base/Secret.h"
#include "cloud/base/Text.h"

#include <algorithm>
#include <string_view>

namespace orvcloud
{
namespace
{
/// An unstructured text as encoded words (RFC 2047) of at most 75 characters, cut between characters.
std::string encodedWords(std::string_view text)
{
    constexpr std::size_t mostBytes = 45;
    std::string result;
    while (!text.empty()) {
        std::size_t length = std::min(text.size(), mostBytes);
        while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80)
            --length;
        result += (result.empty() ? "=?UTF-8?B?" : "\r\n =?UTF-8?B?") + base64(text.substr(0, length)) + "?=";
        text.remove_prefix(length);
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
    return "Date: " + formattedTime(now, "%a, %d %b %Y %H:%M:%S +0000") + "\r\nFrom: " + encodedWords("Orvanta Cloud") +
           " <" + invitation.sender + ">\r\nReply-To: <" + invitation.inviterAddress + ">\r\nTo: <" +
           invitation.recipient + ">\r\nSubject: " +
           encodedWords(invitation.inviterName + " has shared " + invitation.modelName + " with you") +
           "\r\nMessage-ID: <" + randomUuid() + invitation.sender.substr(at) +
           ">\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=utf-8\r\nContent-Transfer-Encoding: "
           "base64\r\n\r\n" +
           wrapped(base64(text));
}

} // namespace orvcloud
