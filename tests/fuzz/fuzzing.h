// fuzzing.h: what the fuzzers share. A fuzzer is one file: it damages one format, and names the
// sound inputs that libFuzzer begins with.
#pragma once

#include "frame/files.h"

#include <functional>
#include <string>
#include <vector>

// What each fuzzer brings.
std::vector<std::string> Seeds();
void PlayRound(const std::string& Input);

// A condition that does not hold is a finding, as is every fatal error outside of IsFatal.
void Require(bool Holds, const std::string& What);
bool IsFatal(const std::function<void()>& Body);

// Files of the game, "\DATA\XP0001", in a directory of this process alone.
void PutFile(const std::string& File, const std::string& Content);
void RemoveGameFile(const std::string& File);
std::string FileContent(const std::string& File);

// Saves twice with a load in between, and wants the same file of at least Size bytes both times.
void RequireLasting(const std::string& File, std::size_t Size, void (*Load)(), void (*Save)());
