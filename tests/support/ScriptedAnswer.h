#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <utility>

namespace orvtest
{

/// What the scripted server does with one request.
struct Answer {
    std::string bytes;                     ///< what it sends; empty for silence
    std::size_t filler = 0;                ///< so many "x" follow, made as they go out
    bool closes = false;                   ///< hangs up after the last byte
    bool readsBody = true;                 ///< false: answers after the header and reads no more
    bool isLast = false;                   ///< from here on the port refuses; this connection stays for the answer
    std::chrono::milliseconds interval{0}; ///< above zero: one byte at a time, so far apart

    static Answer ok(std::string const& body, std::string const& moreHeaders = {})
    {
        return status(200, body, moreHeaders);
    }
    static Answer status(int code, std::string const& body = {}, std::string const& moreHeaders = {})
    {
        return raw(head(code, body.size(), moreHeaders) + body, false);
    }
    static Answer redirect(std::string const& address, int code = 302)
    {
        return status(code, "moved", "Location: " + address + "\r\n");
    }
    static Answer silence() { return {}; }            ///< reads, says nothing, stays
    static Answer hangUp() { return raw("", true); }  ///< reads, says nothing, closes
    static Answer deaf() { return unread(Answer()); } ///< stops reading after the header

    /// Closes before the announced end.
    static Answer cut(std::string const& body, std::size_t announced)
    {
        return raw(head(200, announced, "") + body, true);
    }
    /// Falls silent before the announced end.
    static Answer stall(std::string const& body, std::size_t announced)
    {
        return raw(head(200, announced, "") + body, false);
    }
    /// The header at once, the body byte by byte.
    static Answer trickle(std::string const& body, std::chrono::milliseconds gap)
    {
        Answer answer = ok(body);
        answer.interval = gap;
        return answer;
    }
    /// Says how much is coming.
    static Answer large(std::size_t size)
    {
        Answer answer = raw(head(200, size, ""), true);
        answer.filler = size;
        return answer;
    }
    /// The end of the connection is the end of the body.
    static Answer largeUnannounced(std::size_t size)
    {
        Answer answer = raw("HTTP/1.1 200 Scripted\r\nConnection: close\r\n\r\n", true);
        answer.filler = size;
        return answer;
    }
    /// The same, sent before the request's body was read, which is never read then.
    static Answer unread(Answer answer)
    {
        answer.readsBody = false;
        return answer;
    }
    /// The last one before the port refuses.
    static Answer beforeRefusing(std::string const& body, std::string const& moreHeaders = {})
    {
        Answer answer = ok(body, "Connection: close\r\n" + moreHeaders);
        answer.closes = true;
        answer.isLast = true;
        return answer;
    }
    static Answer raw(std::string bytes, bool closes = true)
    {
        Answer answer;
        answer.bytes = std::move(bytes);
        answer.closes = closes;
        return answer;
    }

private:
    static std::string head(int code, std::size_t length, std::string const& moreHeaders)
    {
        return "HTTP/1.1 " + std::to_string(code) +
               " Scripted\r\nContent-Type: text/plain\r\nContent-Length: " + std::to_string(length) + "\r\n" +
               moreHeaders + "\r\n";
    }
};

} // namespace orvtest
