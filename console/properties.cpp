#include "console/console.h"

#include "frame/elements.h"

#include <algorithm>

const Element* ElementByName(const std::string& Text)
{
    const std::optional<IndexedName> Name = ParseName(Text);
    if (!Name || Name->Indexes.size() > 1 || !Name->Field.empty()) return nullptr;
    if (Name->Indexes.empty()) return FindElement(Name->Name, -1);
    return Name->Indexes[0] < 0 ? nullptr : FindElement(Name->Name, Name->Indexes[0]);
}

// The properties of each kind.
struct KindRow {
    ElementKind Kind;
    std::vector<std::string> Properties;
};
static const KindRow Kinds[] = {
    {ElementKind::Screen, {"left", "top", "width", "height", "visible", "shown"}},
    {ElementKind::Picture,
     {"left", "top", "width", "height", "visible", "picture", "tag", "tip", "shown", "screen"}},
    {ElementKind::Panel,
     {"left", "top", "width", "height", "visible", "picture", "tag", "tip", "shown", "screen"}},
    {ElementKind::Label,
     {"left", "top", "width", "height", "visible", "caption", "color", "tag", "tip", "shown",
      "screen"}},
    {ElementKind::TextBox,
     {"left", "top", "width", "height", "visible", "text", "focus", "tag", "tip", "shown",
      "screen"}},
    {ElementKind::ListBox,
     {"left", "top", "width", "height", "visible", "text", "items", "tag", "tip", "shown",
      "screen"}},
    {ElementKind::Timer, {"enabled", "interval", "tag"}},
    {ElementKind::Store, {"picture", "width", "height"}},
    {ElementKind::Line, {"left", "top", "width", "height", "visible", "shown", "screen"}},
};

static bool HasProperty(const Element& E, const std::string& Property)
{
    for (const KindRow& Row : Kinds)
        if (Row.Kind == E.Kind)
            return std::find(Row.Properties.begin(), Row.Properties.end(), Property) !=
                   Row.Properties.end();
    return false;
}

static std::string NoProperty(const Element& E, const std::string& Property)
{
    return "error: " + ElementText(E) + " has no property " + Property;
}

static std::string ListText(const std::vector<std::string>& Items)
{
    std::string Text;
    for (const std::string& Item : Items) Text += (Text.empty() ? "" : " ") + QuotedText(Item);
    return Text;
}

static std::string ColourText(Colour C)
{
    return std::to_string(C.Red) + "," + std::to_string(C.Green) + "," + std::to_string(C.Blue);
}

std::string PropertyValue(const Element& E, const std::string& Property)
{
    if (!HasProperty(E, Property)) return NoProperty(E, Property);
    if (Property == "left") return LengthText(E.Left);
    if (Property == "top") return LengthText(E.Top);
    if (Property == "width") return LengthText(E.Width);
    if (Property == "height") return LengthText(E.Height);
    if (Property == "visible") return E.Visible ? "1" : "0";
    if (Property == "shown") return IsShown(E) ? "1" : "0";
    if (Property == "picture") return QuotedText(PictureName(E.Shows));
    if (Property == "tag") return QuotedText(E.Tag);
    if (Property == "tip") return QuotedText(E.ToolTip);
    if (Property == "caption" || Property == "text") return QuotedText(E.Caption);
    if (Property == "color") return QuotedText(ColourText(E.Ink));
    if (Property == "items") return ListText(E.Items);
    if (Property == "focus") return Focused() == &E ? "1" : "0";
    if (Property == "enabled") return E.Enabled ? "1" : "0";
    if (Property == "interval") return std::to_string(E.Interval);
    const Point Place = ScreenPlace(E);
    return LengthText(Place.X) + " " + LengthText(Place.Y);
}

// A picture by the name that "get" answers.
static std::optional<Picture> ParsePicture(const std::string& Name)
{
    if (Name.empty()) return NoPicture();
    if (Name.rfind("form:", 0) == 0) {
        const Element* Owner = ElementByName(Name.substr(5));
        return Owner ? std::optional(FormPicture(*Owner)) : std::nullopt;
    }
    if (Name.size() == 12 && Name[0] == '\\') {
        const std::optional<int> Number = WholeNumber(Name.substr(8));
        const Picture File = FilePicture(Name.substr(6, 2), Number.value_or(0));
        return PictureName(File) == Name ? std::optional(File) : std::nullopt;
    }
    const Element* Stock = ElementByName(Name);
    if (Stock && Stock->Panel == frmClips.Id && Stock->Kind == ElementKind::Picture)
        return StockPicture(*Stock);
    const std::optional<IndexedName> Cell = ParseName(Name);
    const Element* Store =
        Cell && Cell->Indexes.size() == 1 ? FindElement(Cell->Name, -1) : nullptr;
    if (!Store || Store->Kind != ElementKind::Store) return std::nullopt;
    const int Number = Cell->Indexes[0];
    if (Number < 0 || Number >= Store->Columns * Store->Rows) return std::nullopt;
    return CellPicture(*Store, Number);
}

// "192,192,192", as "get" answers it.
static std::optional<Colour> ParseColour(const std::string& Text)
{
    const std::optional<IndexedName> Parts = ParseName("(" + Text + ")");
    if (!Parts || Parts->Indexes.size() != 3) return std::nullopt;
    for (int Part : Parts->Indexes)
        if (Part < 0 || Part > 255) return std::nullopt;
    const auto Byte = [&](int Place) { return static_cast<std::uint8_t>(Parts->Indexes[Place]); };
    return Colour{Byte(0), Byte(1), Byte(2)};
}

static std::string PutNumber(const Element& E, const std::string& Property, double Value)
{
    const float New = static_cast<float>(Value);
    const bool IsFlag = Property == "visible" || Property == "enabled" || Property == "focus";
    if (IsFlag && Value != 0 && Value != 1) return "error: a flag is 1 or 0";
    if (Property == "interval" && Value < 1) return "error: an interval is 1 ms or more";
    if (Property == "left") SetPlace(E, New, E.Top);
    if (Property == "top") SetPlace(E, E.Left, New);
    if (Property == "width") SetSize(E, New, E.Height);
    if (Property == "height") SetSize(E, E.Width, New);
    if (Property == "visible") SetVisible(E, New != 0);
    if (Property == "interval") Elements[E.Id].Interval = static_cast<int>(Value);
    if (Property == "enabled") {
        if (New != 0)
            EnableTimer(E);
        else
            DisableTimer(E);
    }
    if (Property == "focus" && New != 0) SetFocus(E);
    return "ok";
}

std::string PutProperty(const Element& E, const std::string& Property, const Argument& Value)
{
    if (!HasProperty(E, Property)) return NoProperty(E, Property);
    if (Property == "shown" || Property == "screen" || Property == "items")
        return "error: " + Property + " cannot be put";
    if (Property == "caption")
        SetCaption(E, Value.Text);
    else if (Property == "text" && E.Kind == ElementKind::TextBox)
        SetText(E, Value.Text);
    else if (Property == "text")
        SelectItem(E, Value.Text);
    else if (Property == "tag")
        SetTag(E, Value.Text);
    else if (Property == "tip")
        SetToolTip(E, Value.Text);
    else if (Property == "picture") {
        const std::optional<Picture> New = ParsePicture(Value.Text);
        if (!New) return "error: no picture " + Value.Text;
        SetPicture(E, *New);
    } else if (Property == "color") {
        const std::optional<Colour> New = ParseColour(Value.Text);
        if (!New) return "error: a colour is \"R,G,B\"";
        SetInk(E, *New);
    } else {
        const std::optional<double> Number = RealNumber(Value.Text);
        if (!Number) return "error: " + Value.Text + " is no number";
        return PutNumber(E, Property, *Number);
    }
    return "ok";
}
