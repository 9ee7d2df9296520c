#include "frame/game_state.h"

#include <cmath>
#include <deque>
#include <random>

static std::mt19937 Generator;
static std::deque<double> Queue;

double Rnd()
{
    if (!Queue.empty()) {
        const double Value = Queue.front();
        Queue.pop_front();
        return Value;
    }
    return Generator() / 4294967296.0;
}

void Randomize()
{
    const DateTime Now = Platform.Now();
    std::seed_seq Seed{Now.Year,
                       Now.Month,
                       Now.Day,
                       Now.Hour,
                       Now.Minute,
                       Now.Second,
                       static_cast<int>(Platform.Milliseconds())};
    Generator.seed(Seed);
}

int RandomBetween(int Low, int High)
{
    return static_cast<int>(Low + std::floor(Rnd() * (static_cast<double>(High) - Low + 1)));
}

void QueueRandom(std::vector<double> Values)
{
    Queue.assign(Values.begin(), Values.end());
}
