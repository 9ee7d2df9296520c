// desktop.h: the window brings the elements to life: pixels out, input in. It holds no rule.
#pragma once

#include "frame/elements.h"

#include <QImage>
#include <QRectF>
#include <QWidget>

#include <string>

// --- view.cpp: from the 1024 by 768 screen to the window's pixels ---

// How the screen on show lies in the window. Scale is device pixels for one pixel of the screen.
struct ScreenView {
    const Element* Screen = nullptr; // frmSplash or frmMain
    double Scale = 1, Ratio = 1;     // Ratio: device pixels for one logical pixel of the desktop
    int OffsetX = 0, OffsetY = 0;    // device pixels of black bars at the left and the top
};
ScreenView FitScreen(const Element& Screen, const QWidget& Window, bool FullScreen);
QRect DeviceRect(const ScreenView& View, const Rectangle& R); // covers all it touches
QPointF ScreenPoint(const ScreenView& View, const QPointF& Logical);

// --- paint.cpp: elements to pixels ---

// Paints what lies in the clip, in device pixels, back to front.
void PaintScreen(QPainter& Painter, const ScreenView& View, const QRect& Clip);
QFont ElementFont(const Element& E, double Scale);
// The font, smaller where the text is too wide, but not below 12 pixels of the screen.
QFont FontThatFits(QFont Font, const QString& Text, double Width, double Scale);

// --- pictures.cpp: picture references to pixels ---

// The pixels of a picture and the part of them to draw. Kept at the scale of the view.
struct Pixels {
    const QImage* Image = nullptr; // nullptr: nothing to draw
    QRect Part;
};
Pixels FindPixels(const Picture& P, double Scale);
void ForgetUnusedFiles();          // what no element shows any more
void ForgetForm(const Element& E); // the picture of its design, when it is shown no more
void ForgetPixels();               // of another scale

// --- sound.cpp: music and effects ---

void StartSound(QObject* Receiver); // opens the device beside the start-up; silent without one
void StopSound();
void PlayEffect(const std::string& File);
void MusicStop();
void MusicSetFile(const std::string& File);
void MusicPlay();

// --- window.cpp: the one window of the game ---

void FillPlatform();
void OpenGameWindow();
void DeliverTrackEnded(); // the player's track came to its end
