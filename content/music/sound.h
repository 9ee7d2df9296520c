// sound.h: samples, their loudness and their last polish, for the music and the effects alike.
#pragma once

#include <vector>

constexpr int SampleRate = 44100;

struct Stereo {
    std::vector<float> Left, Right; // of the same length, full scale is 1
};

// Random numbers that are the same on every machine and in every run.
struct Dice {
    unsigned long long State;
};
double Roll(Dice& From);       // 0 to 1
double RollAround(Dice& From); // bell-shaped around 0, spread 1

// Loudness after ITU-R BS.1770 with its two gates, in LUFS; -120 for silence.
double Loudness(const Stereo& Sound);

// The loudest 400 ms in LUFS; a shorter sound is measured as if silence followed.
double LoudestMoment(const Stereo& Sound);

// The highest peak between the samples too, found by four-fold oversampling, in dB of full scale.
double TruePeak(const Stereo& Sound);

void Amplify(Stereo& Sound, double Decibels);

// Turns down, softly and ahead of time, what would rise over Ceiling (dB, true peak).
void Limit(Stereo& Sound, double Ceiling);

// Cosine fades over the first and last seconds.
void Fade(Stereo& Sound, double InSeconds, double OutSeconds);
