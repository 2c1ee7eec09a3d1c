#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace orvtest
{

/// While it lives, counts the calls by which this program's C++ streams write, to whatever file. One at a time; the
/// program links WriteCalls.cpp, which stands before the system's two functions.
class WriteCalls
{
public:
    WriteCalls();
    ~WriteCalls();
    WriteCalls(WriteCalls const&) = delete;
    WriteCalls& operator=(WriteCalls const&) = delete;

    std::size_t count() const { return calls.size(); }
    std::vector<std::string> const& texts() const { return calls; } ///< of each call the first 4096 bytes

    void add(char const* data, std::size_t size);

private:
    std::vector<std::string> calls;
};

} // namespace orvtest
