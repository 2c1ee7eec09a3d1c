#pragma once

#include <stdexcept>

namespace prc
{

/// What is wrong with a file that is being read, as a sentence.
class FormatError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace prc
