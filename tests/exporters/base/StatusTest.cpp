// The outcome that an exception stands for.

#include "exporters/base/Exporter.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>

using orvexp::Status;

namespace
{

TEST(StatusOfException, TellsEachKind)
{
    struct Case {
        char const* what;
        std::function<void()> work;
        Status status;
    };
    Case const cases[] = {
        {"nothing to write", [] { throw orvexport::NothingToWrite(); }, Status::nothingToWrite},
        {"a reason of the disk", [] { throw orvexport::OutputError(Status::diskFull, "full"); }, Status::diskFull},
        {"no reason of the disk's", [] { throw orvexport::OutputError("unknown"); }, Status::cannotWrite},
        {"memory", [] { throw std::bad_alloc(); }, Status::noMemory},
        {"memory in an array", [] { throw std::bad_array_new_length(); }, Status::noMemory},
        {"length", [] { throw std::length_error("too long"); }, Status::modelTooLarge},
        {"another of the library's", [] { throw std::runtime_error("other"); }, Status::cannotWrite},
        {"no standard exception", [] { throw 7; }, Status::cannotWrite}};
    for (auto const& [what, work, status] : cases) {
        try {
            work();
        } catch (...) {
            EXPECT_EQ(orvexport::statusOfException(), status) << what;
        }
    }
}

} // namespace
