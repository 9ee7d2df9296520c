// kinds.h: the drawings by recipe, one file each
#pragma once

#include "tiles.h"

void DrawAfrican(QPainter& P, const Recipe& R);
void DrawBird(QPainter& P, const Recipe& R);
void DrawBug(QPainter& P, const Recipe& R);
void DrawButterfly(QPainter& P, const Recipe& R);
void DrawClassic(QPainter& P, const Recipe& R);
void DrawColourSample(QPainter& P, const Recipe& R);
void DrawCosmos(QPainter& P, const Recipe& R);
void DrawDino(QPainter& P, const Recipe& R);
void DrawDog(QPainter& P, const Recipe& R);
void DrawEgg(QPainter& P, const Recipe& R);
void DrawFish(QPainter& P, const Recipe& R);
void DrawFlower(QPainter& P, const Recipe& R);
void DrawHand(QPainter& P, const Recipe& R);
void DrawLetterSample(QPainter& P, const Recipe& R);
void DrawMask(QPainter& P, const Recipe& R);
void DrawMonument(QPainter& P, const Recipe& R);
void DrawPlane(QPainter& P, const Recipe& R);
void DrawSea(QPainter& P, const Recipe& R);
void DrawService(QPainter& P, const Recipe& R);
void DrawShield(QPainter& P, const Recipe& R);
void DrawShoe(QPainter& P, const Recipe& R);
void DrawSign(QPainter& P, const Recipe& R);
void DrawSino(QPainter& P, const Recipe& R);
void DrawSunset(QPainter& P, const Recipe& R);
void DrawTree(QPainter& P, const Recipe& R);
