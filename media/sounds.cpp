#include "media/media.h"

#include <algorithm>
#include <cctype>

constexpr int SoundsOff = 1;

struct EffectRow {
    const char* Word;
    const char* File;
};
constexpr EffectRow Effects[] = {
    {"MIX", "FX0001"},    {"PAIR", "FX0002"},    {"PAUSE", "FX0003"}, {"PEEK", "FX0004"},
    {"OPTION", "FX0005"}, {"PUSH", "FX0006"},    {"RANK", "FX0007"},  {"TIC", "FX0008"},
    {"UNDO", "FX0009"},   {"UNPAUSE", "FX0010"},
};

static std::string UpperCase(std::string Text)
{
    std::transform(Text.begin(), Text.end(), Text.begin(),
                   [](unsigned char C) { return static_cast<char>(std::toupper(C)); });
    return Text;
}

void PlaySound(std::string& Word)
{
    if (GameState.SoundLevel == SoundsOff) return;
    const std::string Upper = UpperCase(Word);
    for (const EffectRow& Effect : Effects)
        if (Upper == Effect.Word) Word = Effect.File;
    Platform.PlaySoundFile("\\DATA\\" + Word);
}
