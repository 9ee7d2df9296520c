#include "frame/platform.h"

#include <cstdlib>
#include <iostream>

PlatformCalls Platform = {
    .PlaySoundFile = [](const std::string&) {},
    .MusicStop = [] {},
    .MusicSetFile = [](const std::string&) {},
    .MusicPlay = [] {},
    .ModeSet = [](int, int) {},
    .WindowPlace = [](int, int) {},
    .Minimize = [] {},
    .OpenAddress = [](const std::string&) {},
    .Now = [] { return DateTime{2026, 1, 2, 3, 4, 5}; },
    .Milliseconds = [] { return 0LL; },
    .Yield = [] {},
    .ReportFatal = [](const std::string& Text) { std::cerr << "pagodas: " << Text << std::endl; },
    .ReportTrouble = [](const std::string& Text) { std::cerr << "pagodas: " << Text << std::endl; },
    .End = [] {},
};

void FatalError(const std::string& Text)
{
    Platform.ReportFatal(Text);
    std::_Exit(1); // no destructors: nothing of a broken state may reach the disk
}
