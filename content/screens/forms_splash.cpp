// forms_splash.cpp: the logo and the title of the start

#include "forms.h"

static void DrawLogo(QPainter& P, const QRectF& Box)
{
    DrawPanel(P, Box.adjusted(2, 2, -2, -2), 16);
}

static void DrawTitlePicture(QPainter& P, const QRectF& Box)
{
    DrawPanel(P, Box.adjusted(2, 2, -2, -2), 18);
    DrawTitle(P, Box, "Pagodas", 84);
}

void AddSplash(FormPictures& To)
{
    AddForm(To, "imgLogo", SplashSheet, DrawLogo);
    AddForm(To, "imgTitle", SplashSheet, DrawTitlePicture);
}
