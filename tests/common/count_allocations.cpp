// Counts what a program takes from the heap. In a file of its own, where no caller is compiled
// together with it.
#include "tests/common/count_allocations.h"

#include <cstdlib>
#include <new>

std::size_t Allocations = 0;

void* operator new(std::size_t Size)
{
    ++Allocations;
    if (void* Memory = std::malloc(Size)) return Memory;
    throw std::bad_alloc();
}

// A stable sort takes its room so. All forms are ours: the sanitizers want pairs.
void* operator new(std::size_t Size, const std::nothrow_t&) noexcept
{
    ++Allocations;
    return std::malloc(Size);
}

void operator delete(void* Memory) noexcept
{
    std::free(Memory);
}

void operator delete(void* Memory, std::size_t) noexcept
{
    std::free(Memory);
}
