// count_allocations.h: how often the program has taken memory from the heap by operator new.
#pragma once

#include <cstddef>

extern std::size_t Allocations;
