// elements.h: the retained set of screen elements. A rule changes the screen by setting a property;
// front ends only translate: pixels out, input in.
//
// Elements are read directly (lblWord.Tag, imgTile(5).Left) and changed through the procedures
// below, which note the rectangle of the screen that has become stale. A property that does not
// change marks nothing. Positions are pixels inside the panel that holds the element; those of a
// whole screen (frmMain, frmSplash) are twips on the desktop, 15 to the pixel.
#pragma once

#include "frame/game_state.h"

#include <string>
#include <string_view>
#include <vector>

enum class ElementKind { Screen, Picture, Panel, Label, TextBox, ListBox, Timer, Store, Line };
enum class MouseButton { Left, Right, Middle };
enum class Align { Left, Centre, Right };
enum class FontFace { Sans, Serif };

using ElementId = int;
constexpr ElementId NoElement = -1;
constexpr int TwipsPerPixel = 15;
constexpr int FullWidth = 1024, FullHeight = 768; // pixels of frmMain and of a full-size picture

struct TextFont {
    FontFace Face = FontFace::Sans;
    int Size = 14; // pixels
    bool Bold = false;
    Align Place = Align::Left;
};

// A picture is a reference, never pixels: nothing, a file of the game directory, a cell of a
// picture store, a stock picture of frmClips or a picture of the screen's own design.
enum class PictureKind : std::uint8_t { None, File, Cell, Stock, Form };

struct Picture {
    PictureKind Kind = PictureKind::None;
    char Prefix[3] = "";         // File: "TS", "BD", ...
    I16 Number;                  // File: its number; Cell: the cell
    ElementId Owner = NoElement; // Cell: the store; Stock and Form: the element that names it
    friend bool operator==(const Picture& A, const Picture& B)
    {
        return A.Kind == B.Kind && A.Prefix[0] == B.Prefix[0] && A.Prefix[1] == B.Prefix[1] &&
               A.Number.Value == B.Number.Value && A.Owner == B.Owner;
    }
};

// What an element does when an event reaches it. Index is that of the element in its array; X and
// Y are pixels from its left top corner.
using MouseHandler = void (*)(int Index, MouseButton Button, int X, int Y);
using IndexHandler = void (*)(int Index);

struct Handlers {
    MouseHandler MouseDown = nullptr, MouseMove = nullptr, MouseUp = nullptr;
    IndexHandler Click = nullptr;
    IndexHandler Change = nullptr, DropDown = nullptr, Tick = nullptr;
    void (*KeyPress)(int Index, int Key) = nullptr;
    // Image buttons: work done while the finger is down, and the action of the release.
    IndexHandler Press = nullptr, Action = nullptr;
};

// A filled box on a panel: its corners, both included, in pixels of the panel.
struct FilledBox {
    int Left, Top, Right, Bottom;
    Colour Ink;
};

struct Element {
    ElementKind Kind = ElementKind::Picture;
    const char* Name = "";
    int Index = -1; // in its array; -1 for an element without index
    ElementId Id = NoElement;
    ElementId Panel = NoElement; // that holds it
    float Left = 0, Top = 0, Width = 0, Height = 0;
    bool Visible = false;
    bool StaysOnTop = false; // window controls: nothing is brought in front of them
    bool Ghost = false;      // lets the pointer through to what lies under it
    Picture Shows;
    std::string Caption; // label; the text of a text box or list box
    Colour Ink;
    TextFont Font;
    std::string Tag, ToolTip;
    Handlers Does;

    // Stacking: neighbours in the panel, and a panel's rearmost and foremost element
    ElementId Behind = NoElement, Before = NoElement;
    ElementId Rearmost = NoElement, Foremost = NoElement;

    int Shade = 0;                // panel: how much it darkens what lies under it, 0..255
    std::vector<FilledBox> Boxes; // panel: drawn over its picture

    bool Enabled = false;           // timer
    int Interval = 0;               // timer: ms
    long long Due = 0;              // timer: on the platform's clock
    std::vector<std::string> Items; // list box
    int ItemsChanged = 0;           // list box: goes up with every change of its items
    int Columns = 1, Rows = 1;      // store: cells
    int EndX = 0, EndY = 0;         // line: its other end, from Left and Top
};

// An array of elements of one name.
struct ElementArray {
    const char* Name;
    ElementId FirstId;
    int First, Count;
    const Element& operator()(int Index) const; // an index outside the array is fatal
};

#include "frame/element_names.h"

// --- elements.cpp: the elements and their properties ---

// Puts every element into its design state. Start-up calls it once; tests for each fresh game.
void InitElements();
// design.cpp: what the table of the screens cannot tell; InitElements calls them.
void SetDesignPlaces();
void SetDesignCaptions();

std::string ElementText(const Element& E);                    // "imgTile(5)", "picNote"
const Element* FindElement(std::string_view Name, int Index); // nullptr; Index -1 for none

void SetVisible(const Element& E, bool Visible);
inline void Show(const Element& E)
{
    SetVisible(E, true);
}
inline void Hide(const Element& E)
{
    SetVisible(E, false);
}
void Show(const ElementArray& A);
void Hide(const ElementArray& A);
void SetPlace(const Element& E, float Left, float Top);
void SetSize(const Element& E, float Width, float Height);
void SetPicture(const Element& E, const Picture& New);
void SetCaption(const Element& E, std::string_view Text);
void AddToCaption(const Element& E, std::string_view Text);
void SetCaption(const ElementArray& Shadowed, std::string_view Text); // both labels of a pair
void SetInk(const Element& E, Colour New);
void SetTag(const Element& E, std::string_view Tag);
void SetToolTip(const Element& E, std::string_view Text);
void SetToolTip(const ElementArray& A, std::string_view Text);
void SetHandlers(const Element& E, const Handlers& Does);
void SetHandlers(const ElementArray& A, const Handlers& Does);
void SetBoxes(const Element& Panel, std::vector<FilledBox> Boxes);
void SetLine(const Element& E, int X1, int Y1, int X2, int Y2);

// Text box and list box. A text set by a rule counts as a Change.
void SetText(const Element& E, std::string_view Text);
void SetFocus(const Element& E);
const Element* Focused(); // a text box that is on the screen, or nullptr
void SetItems(const Element& E, const std::vector<std::string>& Items);
// Selects the item without an event; a text that is no item selects nothing.
void SelectItem(const Element& E, std::string_view Item);

bool IsShown(const Element& E); // it and all that hold it are visible
struct Point {
    float X, Y;
};
Point ScreenPlace(const Element& E); // its left top corner on its screen

// --- pictures.cpp: references to pictures ---

Picture NoPicture();
Picture FilePicture(std::string_view Prefix, int Number); // "TS", 7: \DATA\TS0007; "PH": \PHOT
Picture CellPicture(const Element& Store, int Cell);      // a cell that the store lacks is fatal
Picture StockPicture(const Element& Stock);               // of frmClips
Picture FormPicture(const Element& E);                    // the picture drawn for this element
std::string PictureName(const Picture& P); // "\DATA\TS0007", "clpTileSet(36)", "form:picMenu"
std::string PictureFile(const Picture& P); // of a File picture
// Checks that the file is there, whole and of that size in pixels (0: any), and assigns it. A file
// that is not is a fatal error with its name.
void LoadPicture(const Element& E, std::string_view Prefix, int Number, int Width, int Height);
// Why a picture file cannot be used, or "". Reads its headers only.
std::string PictureFileTrouble(const std::string& Path, int Width, int Height);

// --- stacking.cpp: what lies over what ---

void BringToFront(const Element& E); // among the elements of its panel
void SendToBack(const Element& E);
bool StandsBefore(const Element& A, const Element& B);
const Element* HitTest(float X, float Y); // topmost visible element of frmMain, or nullptr

// --- events.cpp: the one door for input; desktop and console both end here ---

// Each answers the element that took the event, or nullptr.
const Element* SendMouseMove(float X, float Y);
const Element* SendMouseDown(MouseButton Button, float X, float Y);
const Element* SendMouseUp(MouseButton Button, float X, float Y);
// To an element whatever covers it. An element with a Press or an Action is an image button.
void DeliverMouseMove(const Element& E, int X, int Y);
void DeliverMouseDown(const Element& E, MouseButton Button, int X, int Y);
void DeliverMouseUp(const Element& E, MouseButton Button, int X, int Y);
void SendKeyDown(std::string_view Key, bool Shift, bool Ctrl, bool Alt); // "up", "a", ...
void SendText(const Element& TextBox, std::string_view Text); // typed or pasted: the new text
void SendCharacter(const Element& TextBox, std::string_view Character); // typed at its end
void SendKeyPress(const Element& TextBox, int Key);
void SendDropDown(const Element& ListBox);
void SendChoice(const Element& ListBox, std::string_view Item);
// frmMain's own KeyDown handler.
extern void (*MainKeyDown)(std::string_view Key, bool Shift, bool Ctrl, bool Alt);

// --- timers.cpp: timers live in the model and tick when the front end lets them ---

void EnableTimer(const Element& Timer); // starts a whole interval
void DisableTimer(const Element& Timer);
const Element* NextTimer();           // the enabled timer that falls due first, or nullptr
void TickTimer(const Element& Timer); // the next tick is due one interval later
bool RunDueTimers(long long Now);     // in the order in which they fall due; true if any ticked

// --- stale.cpp: what the painter has to paint again ---

struct Rectangle {
    float Left, Top, Width, Height; // pixels of frmMain
};
void MarkStale(const Element& E);
std::vector<Rectangle>& StaleRectangles(); // the painter empties it
