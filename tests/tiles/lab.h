// Colours as eyes see them: CIE Lab, L from 0 black to 100 white; a distance of 2 is just seen side
// by side. Also as an eye without red and green sees them.
#pragma once

#include <QRgb>

#include <array>
#include <cmath>

struct Lab {
    double L, A, B;
};

using LinearRgb = std::array<double, 3>; // 0 to 1

inline LinearRgb LinearOf(QRgb C)
{
    static const auto Table = [] {
        std::array<double, 256> T{};
        for (std::size_t I = 0; I < T.size(); ++I) {
            const double V = static_cast<double>(I) / 255;
            T[I] = V <= 0.04045 ? V / 12.92 : std::pow((V + 0.055) / 1.055, 2.4);
        }
        return T;
    }();
    const auto Part = [](int V) { return Table[static_cast<std::size_t>(V)]; };
    return {Part(qRed(C)), Part(qGreen(C)), Part(qBlue(C))};
}

inline Lab LabOf(const LinearRgb& C)
{
    const auto [R, G, B] = C;
    const auto Root = [](double T) { return T > 0.008856 ? std::cbrt(T) : 7.787 * T + 16.0 / 116; };
    const double X = Root((0.4124 * R + 0.3576 * G + 0.1805 * B) / 0.9505);
    const double Y = Root(0.2126 * R + 0.7152 * G + 0.0722 * B);
    const double Z = Root((0.0193 * R + 0.1192 * G + 0.9505 * B) / 1.089);
    return {116 * Y - 16, 500 * (X - Y), 200 * (Y - Z)};
}

inline Lab LabOf(QRgb C)
{
    return LabOf(LinearOf(C));
}

// Full deuteranopia, after Machado, Oliveira and Fernandes (2009).
inline LinearRgb Deuteranope(const LinearRgb& C)
{
    const auto [R, G, B] = C;
    const auto Row = [&](double KR, double KG, double KB) {
        return std::fmin(1, std::fmax(0, KR * R + KG * G + KB * B));
    };
    return {Row(0.367322, 0.860646, -0.227968), Row(0.280085, 0.672501, 0.047413),
            Row(-0.011820, 0.042940, 0.968881)};
}

inline double Distance(const Lab& P, const Lab& Q)
{
    return std::sqrt((P.L - Q.L) * (P.L - Q.L) + (P.A - Q.A) * (P.A - Q.A) +
                     (P.B - Q.B) * (P.B - Q.B));
}
