// main.cpp: make-paintings OUTDIR FIRST LAST [PLAN]
//
// Paints the pictures FIRST to LAST of plan.tsv into OUTDIR/PHOT/PH0001 and so on: JPEG files
// without extension, 720 by 420 pixels.

#include "scene.h"

#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

constexpr int JpegQuality = 86;

constexpr int VariantCount = 9; // places in the range that Vary hands out in turn

float Vary(Scene& P, float Low, float High, int Step)
{
    return Lerp(Low, High, (float(P.Variant * Step % VariantCount) + Any(P.C)) / VariantCount);
}

static QImage Paint(const PlanRow& Row, int Variant)
{
    Scene P;
    P.Plan = Row;
    P.C = BlankCanvas(std::uint64_t(Row.Number));
    P.L = FindLight(Row.Light);
    P.S = FindSeason(Row.Season);
    P.Variant = Variant;
    // noise differs by number, choices (the remainders of Seed) by variant
    P.Seed = std::uint32_t(Row.Number) * 2520 + std::uint32_t(Variant);
    P.Night = P.L->Kind == 'n';
    P.Ink = P.L->Kind == 'i';
    P.Snow = Row.Season == "winter";
    const bool Mirrored = Any(P.C) < 0.5f;
    FindComposition(Row.Composition)(P);
    PaintWeather(P);
    Varnish V;
    V.Mirrored = Mirrored;
    if (P.Night) V.Darkest = 0.02f, V.Lightest = 0.86f, V.Corners = 0.20f;
    if (P.Ink) V.Grain = 0.08f, V.Relief = 0.03f;
    if (P.L->Thick > 1.45f) V.Darkest = 0.12f;
    return Finish(P.C, V);
}

int main(int Count, char** Words)
{
    QGuiApplication App(Count, Words);
    if (Count < 4) {
        std::fprintf(stderr, "usage: make-paintings OUTDIR FIRST LAST [PLAN]\n");
        return 1;
    }
    const std::string PlanPath = Count > 4 ? Words[4] : PAINTINGS_DIR "/plan.tsv";
    const std::vector<PlanRow> Plan = ReadPlan(PlanPath);
    const int First = std::atoi(Words[2]), Last = std::atoi(Words[3]);
    if (First < 1 || Last > int(Plan.size()) || First > Last) {
        std::fprintf(stderr, "make-paintings: %s holds no pictures %d to %d\n", PlanPath.c_str(),
                     First, Last);
        return 1;
    }
    const QDir Out(QString::fromLocal8Bit(Words[1]) + "/PHOT");
    if (!Out.mkpath(".")) {
        std::fprintf(stderr, "make-paintings: cannot make %s\n", qPrintable(Out.path()));
        return 1;
    }
    for (int Number = First; Number <= Last; ++Number) {
        const PlanRow& Row = Plan[std::size_t(Number - 1)];
        const int Variant =
            int(std::count_if(Plan.begin(), Plan.begin() + Number - 1, [&](const PlanRow& Other) {
                return Other.Composition == Row.Composition;
            }));
        const QString Path = Out.filePath(QString::asprintf("PH%04d", Number));
        QImageWriter Writer(Path, "jpg");
        Writer.setQuality(JpegQuality);
        Writer.setOptimizedWrite(true);
        if (!Writer.write(Paint(Row, Variant))) {
            std::fprintf(stderr, "make-paintings: cannot write %s: %s\n", qPrintable(Path),
                         qPrintable(Writer.errorString()));
            return 1;
        }
    }
    return 0;
}
