// element_names.h: every element as a C++ name, made from the table of the screens.
// Included by elements.h only.
#pragma once

// The number of every element; an array takes one for each of its elements.
enum ElementNumber : int {
#define ONE(Kind, Name, ...) Id_##Name,
#define MANY(Kind, Name, First, Count, ...) Id_##Name, End_##Name = Id_##Name + (Count)-1,
#include "frame/screens.def"
    ElementCount
};

extern Element Elements[ElementCount];

#define ONE(Kind, Name, ...) inline const Element& Name = Elements[Id_##Name];
#define MANY(Kind, Name, First, Count, ...)                                                        \
    inline constexpr ElementArray Name{#Name, Id_##Name, First, Count};
#include "frame/screens.def"
