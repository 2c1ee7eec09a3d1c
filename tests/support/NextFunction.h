#pragma once

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace orvtest
{

/// The library's function of the same name as this program's, which stands before it.
template <class Function>
Function* nextFunction(Function* own)
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(own), &info) == 0 || info.dli_sname == nullptr) {
        ADD_FAILURE() << "a function without a name";
        return nullptr;
    }
    void* const found = dlsym(RTLD_NEXT, info.dli_sname);
    EXPECT_NE(found, nullptr) << info.dli_sname;
    return reinterpret_cast<Function*>(found);
}

} // namespace orvtest
