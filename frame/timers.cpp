#include "frame/elements.h"

#include <algorithm>

// The timers of all screens.
static constexpr ElementId Timers[] = {Id_tmrLogo, Id_tmrTitle, Id_tmrAgility, Id_tmrPause};

void EnableTimer(const Element& Timer)
{
    Element& T = Elements[Timer.Id];
    T.Enabled = true;
    T.Due = Platform.Milliseconds() + T.Interval;
}

void DisableTimer(const Element& Timer)
{
    Elements[Timer.Id].Enabled = false;
}

const Element* NextTimer()
{
    const Element* Next = nullptr;
    for (ElementId Id : Timers)
        if (Elements[Id].Enabled && (!Next || Elements[Id].Due < Next->Due)) Next = &Elements[Id];
    return Next;
}

void TickTimer(const Element& Timer)
{
    Element& T = Elements[Timer.Id];
    // A front end that was away for long does not make up for the ticks it missed.
    T.Due = std::max(T.Due + T.Interval, Platform.Milliseconds());
    if (T.Does.Tick) T.Does.Tick(T.Index);
}

bool RunDueTimers(long long Now)
{
    bool Ticked = false;
    for (const Element* Next = NextTimer(); Next && Next->Due <= Now; Next = NextTimer()) {
        TickTimer(*Next);
        Ticked = true;
    }
    return Ticked;
}
