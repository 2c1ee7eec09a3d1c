#include "support/AllocatedBytes.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<std::size_t> total = 0;

}

void* operator new(std::size_t size)
{
    total += size;
    if (void* const memory = std::malloc(size > 0 ? size : 1)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace orvtest
{

std::size_t allocatedBytes()
{
    return total;
}

} // namespace orvtest
