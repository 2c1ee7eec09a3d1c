#pragma once

#include <stdexcept>

namespace orvcloud
{

/// The database or the data directory failed. `what()` is a whole sentence without anything secret.
class StoreError : public std::runtime_error
{
public:
    StoreError(const std::string& sentence, bool diskIsFull) : std::runtime_error(sentence), full(diskIsFull) {}
    explicit StoreError(const std::string& sentence) : StoreError(sentence, false) {}

    bool diskFull() const { return full; }

private:
    bool full;
};

} // namespace orvcloud
