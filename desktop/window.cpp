#include "desktop/desktop.h"
#include "frame/files.h"
#include "frame/frame.h"
#include "media/media.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QIcon>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QScreen>
#include <QStringListModel>
#include <QTimer>
#include <QToolTip>
#include <QUrl>
#include <QWindow>

#include <algorithm>
#include <iostream>
#include <map>

// The window: what it is asked to be, and what stands on it.
struct GameWindow : QWidget {
    void paintEvent(QPaintEvent* Event) override;
    void mouseMoveEvent(QMouseEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override { mousePressEvent(Event); }
    void keyPressEvent(QKeyEvent* Event) override;
    void closeEvent(QCloseEvent* Event) override;
    void changeEvent(QEvent* Event) override;
    bool event(QEvent* Event) override;
};

static GameWindow* Window = nullptr;
static QTimer* Clock = nullptr;
static QElapsedTimer SinceStart;
static bool FullScreen = false, Minimised = false, Ended = false;
static const Element* ScreenOnShow = nullptr; // as the window was last brought up
static bool ShownFullScreen = false;
static std::map<ElementId, QLineEdit*> TextBoxes;
struct DropList;
static std::map<ElementId, DropList*> ListBoxes;
static std::map<ElementId, int> ListBoxItems; // the ItemsChanged that a box holds

static ScreenView View()
{
    return FitScreen(ScreenOnShow ? *ScreenOnShow : frmSplash, *Window, ShownFullScreen);
}

// --- what changed in the model goes to the window ---

static const Element* VisibleScreen()
{
    if (frmMain.Visible) return &frmMain;
    return frmSplash.Visible ? &frmSplash : nullptr;
}

static void PlaceWindow(const Element& Screen)
{
    const QRect Desktop = Window->screen()->geometry();
    Window->move(Desktop.topLeft() + QPoint(static_cast<int>(Screen.Left) / TwipsPerPixel,
                                            static_cast<int>(Screen.Top) / TwipsPerPixel));
}

static void BringUpWindow()
{
    const Element* Screen = VisibleScreen();
    if (!Screen || Minimised || Ended) return;
    if (Screen == ScreenOnShow && FullScreen == ShownFullScreen && Window->isVisible()) return;
    if (Screen == &frmMain) {
        ForgetForm(imgLogo);
        ForgetForm(imgTitle);
    }
    ScreenOnShow = Screen;
    ShownFullScreen = FullScreen;
    if (FullScreen) {
        Window->setMinimumSize(0, 0);
        Window->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        Window->setGeometry(Window->screen()->geometry());
        Window->showFullScreen();
    } else {
        Window->setWindowState(Qt::WindowNoState); // a new size alone leaves Wayland in full screen
        Window->setWindowFlag(Qt::FramelessWindowHint, Screen == &frmSplash);
        Window->setFixedSize(static_cast<int>(Screen->Width) / TwipsPerPixel,
                             static_cast<int>(Screen->Height) / TwipsPerPixel);
        PlaceWindow(*Screen);
        Window->showNormal();
    }
    Window->update();
}

static void UpdateStale()
{
    std::vector<Rectangle>& Stale = StaleRectangles();
    if (Stale.empty()) return;
    const ScreenView Shown = View();
    QRegion Region;
    for (const Rectangle& R : Stale) {
        const QRect Device = DeviceRect(Shown, R);
        const QRectF Logical(Device.x() / Shown.Ratio, Device.y() / Shown.Ratio,
                             Device.width() / Shown.Ratio, Device.height() / Shown.Ratio);
        Region += Logical.toAlignedRect();
    }
    Stale.clear();
    Window->update(Region);
}

static QRect LogicalPlace(const Element& E)
{
    const ScreenView Shown = View();
    const Point Place = ScreenPlace(E);
    const auto Map = [&](double Value, int Offset) {
        return qRound((Value * Shown.Scale + Offset) / Shown.Ratio);
    };
    const QPoint TopLeft(Map(Place.X, Shown.OffsetX), Map(Place.Y, Shown.OffsetY));
    const QPoint End(Map(Place.X + E.Width, Shown.OffsetX), Map(Place.Y + E.Height, Shown.OffsetY));
    return QRect(TopLeft, End - QPoint(1, 1));
}

static void AfterEvent();

static void LookLikeTheScreen(QWidget* Control, const Element& E)
{
    Control->setFont(ElementFont(E, View().Scale / View().Ratio));
    Control->setStyleSheet("color: #1e1a10; background: #f8f0d8; border: 1px solid #6a4a10;"
                           "border-radius: 3px; padding-left: 4px;"
                           "selection-background-color: #2f6b4e; selection-color: #fff8e0;");
}

static QLineEdit* MakeTextBox(const Element& E)
{
    auto* Box = new QLineEdit(Window);
    Box->setMaxLength(255);
    QObject::connect(Box, &QLineEdit::textEdited, Window, [&E](QString Text) {
        // A paste can bring tabs and other control characters: no name has them.
        for (QChar& C : Text)
            if (C.category() == QChar::Other_Control) C = ' ';
        SendText(E, Text.toStdString());
        AfterEvent();
    });
    QObject::connect(Box, &QLineEdit::returnPressed, Window, [&E] {
        SendKeyPress(E, 13);
        AfterEvent();
    });
    return Box;
}

static void SyncTextBox(const Element& E)
{
    QLineEdit*& Box = TextBoxes[E.Id];
    if (!IsShown(E)) {
        if (Box && Box->isVisible()) {
            Box->hide();
            Window->setFocus();
        }
        return;
    }
    if (!Box) Box = MakeTextBox(E);
    if (!Box->isVisible()) {
        LookLikeTheScreen(Box, E);
        Box->setGeometry(LogicalPlace(E));
        Box->show();
        if (Focused() == &E) Box->setFocus();
        Box->selectAll();
    }
    const QString Text = QString::fromStdString(E.Caption);
    if (Box->text() != Text) Box->setText(Text);
}

// The list drops down under its box, not over the screen. The wheel scrolls it there; over the
// closed box it chooses nothing, since a choice takes the name from the other boxes.
struct ListStyle : QProxyStyle {
    int styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget,
                  QStyleHintReturn* Return) const override
    {
        if (Hint == SH_ComboBox_Popup || Hint == SH_ComboBox_AllowWheelScrolling) return 0;
        return QProxyStyle::styleHint(Hint, Option, Widget, Return);
    }
};

static QPalette ListColours()
{
    QPalette Colours;
    Colours.setColor(QPalette::Base, QColor("#f8f0d8"));
    Colours.setColor(QPalette::Text, QColor("#1e1a10"));
    return Colours;
}

// A list box in the look of the screen, which tells the rules before its list drops down.
struct DropList : QComboBox {
    const Element& E;
    bool Dropped = false;
    explicit DropList(const Element& Owner) : QComboBox(Window), E(Owner)
    {
        static ListStyle* Style = nullptr;
        if (!Style) (Style = new ListStyle)->setParent(qApp);
        setStyle(Style);
        setFocusPolicy(Qt::StrongFocus); // not by the wheel
        setPalette(ListColours());
        // A new font lays out the whole list: now, while it is empty, and later by one item.
        static_cast<QListView*>(view())->setUniformItemSizes(true);
        setFont(ElementFont(E, View().Scale / View().Ratio));
        setModel(new QStringListModel(this));
        setMaxVisibleItems(16);
        setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon); // measures no item
    }
    void showPopup() override
    {
        SendDropDown(E);
        AfterEvent();
        Dropped = true;
        QComboBox::showPopup();
    }
    void hidePopup() override
    {
        Dropped = false;
        QComboBox::hidePopup();
    }
    void keyPressEvent(QKeyEvent* Event) override
    {
        // Shift and an arrow move the window, wherever the keyboard is.
        if (Event->modifiers() == Qt::ShiftModifier)
            Event->ignore();
        else
            QComboBox::keyPressEvent(Event);
    }
    void paintEvent(QPaintEvent*) override
    {
        constexpr double Round = 3;
        QPainter Painter(this);
        Painter.setRenderHint(QPainter::Antialiasing);
        Painter.setPen(hasFocus() ? QPen(QColor("#ff9d00"), 2) : QPen(QColor("#6a4a10"), 1));
        Painter.setBrush(palette().base());
        Painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Round, Round);
        const Pixels Arrow = FindPixels(StockPicture(ArrowDN(Dropped ? 1 : 0)), View().Scale);
        const double Ratio = View().Ratio;
        const QSizeF Size = QSizeF(Arrow.Part.size()) / Ratio;
        const double Margin = (height() - Size.height()) / 2;
        const double ArrowLeft = width() - Size.width() - Margin;
        if (Arrow.Image)
            Painter.drawImage(QRectF(QPointF(ArrowLeft, Margin), Size), *Arrow.Image, Arrow.Part);
        const QRectF Room(2 * Margin + 2, 0, ArrowLeft - 5 * Margin - 2, height());
        Painter.setFont(FontThatFits(font(), currentText(), Room.width(), View().Scale / Ratio));
        Painter.setPen(palette().text().color());
        Painter.drawText(Room, Qt::AlignVCenter | Qt::TextSingleLine, currentText());
    }
};

static DropList* MakeListBox(const Element& E)
{
    auto* Box = new DropList(E);
    QObject::connect(Box, &QComboBox::activated, Window, [&E, Box](int Index) {
        SendChoice(E, Box->itemText(Index).toStdString());
        AfterEvent();
    });
    return Box;
}

// The items of a list box as the window's texts. The players' boxes all hold the same: they are
// made once.
static const QStringList& ItemTexts(const std::vector<std::string>& Items)
{
    static std::vector<std::string> Known;
    static QStringList Texts;
    if (Known != Items) {
        Known = Items;
        Texts.clear();
        for (const std::string& Item : Items) Texts << QString::fromStdString(Item);
    }
    return Texts;
}

static void SyncListBox(const Element& E)
{
    DropList*& Box = ListBoxes[E.Id];
    if (!IsShown(E)) {
        if (Box) Box->hide();
        return;
    }
    if (!Box) Box = MakeListBox(E);
    if (ListBoxItems[E.Id] != E.ItemsChanged) {
        static_cast<QStringListModel*>(Box->model())->setStringList(ItemTexts(E.Items));
        ListBoxItems[E.Id] = E.ItemsChanged;
    }
    const auto Chosen = std::find(E.Items.begin(), E.Items.end(), E.Caption);
    Box->setCurrentIndex(Chosen == E.Items.end() ? -1 : static_cast<int>(Chosen - E.Items.begin()));
    if (!Box->isVisible()) {
        Box->setFont(ElementFont(E, View().Scale / View().Ratio));
        Box->setGeometry(LogicalPlace(E));
        Box->show();
    }
}

static void SyncControls()
{
    SyncTextBox(txtName);
    for (int I = cboPlayerList.First; I < cboPlayerList.First + cboPlayerList.Count; ++I)
        SyncListBox(cboPlayerList(I));
}

static void SetClockToNextTimer()
{
    const Element* Next = NextTimer();
    if (!Next || Ended) {
        Clock->stop();
        return;
    }
    Clock->start(static_cast<int>(std::max(0LL, Next->Due - SinceStart.elapsed())));
}

// What a rule has loaded is read before it is shown: behind the title and on the press of a button,
// so that the release only shows it.
static void ReadPicturesAhead()
{
    const double Scale = View().Scale;
    ForgetUnusedFiles();
    for (const Element& E : Elements)
        if (E.Kind == ElementKind::Panel && E.Shows.Kind == PictureKind::File)
            FindPixels(E.Shows, Scale);
    if (ScreenOnShow == &frmSplash && tmrTitle.Enabled) {
        FindPixels(picBevelRight.Shows, Scale);
        FindPixels(imgTile(1).Shows, Scale);
    }
}

// After everything that may have changed the model.
static void AfterEvent()
{
    if (Ended) {
        // Not at once: a window that is closed while it first comes up ends a loop that has not
        // begun.
        QTimer::singleShot(0, Window, [] { QApplication::exit(0); });
        return;
    }
    BringUpWindow();
    UpdateStale();
    SyncControls();
    ReadPicturesAhead();
    SetClockToNextTimer();
}

// --- input goes to the model ---

// The further buttons of a mouse mean nothing to the game.
static bool HasMeaning(const QMouseEvent* Event)
{
    return (Event->button() & (Qt::LeftButton | Qt::RightButton | Qt::MiddleButton)) != 0;
}

static MouseButton ButtonOf(const QMouseEvent* Event)
{
    if (Event->button() == Qt::RightButton) return MouseButton::Right;
    if (Event->button() == Qt::MiddleButton) return MouseButton::Middle;
    return MouseButton::Left;
}

static QPointF OnScreen(const QPointF& Logical)
{
    return ScreenPoint(View(), Logical);
}

void GameWindow::mouseMoveEvent(QMouseEvent* Event)
{
    const QPointF At = OnScreen(Event->position());
    SendMouseMove(static_cast<float>(At.x()), static_cast<float>(At.y()));
    AfterEvent();
}

static void ComeBack()
{
    if (!Minimised) return;
    Minimised = false;
    ScreenOnShow = nullptr; // the window is to be brought up as it now should be
    MainScreen_Resize();
    AfterEvent();
}

void GameWindow::mousePressEvent(QMouseEvent* Event)
{
    // A desktop that minimises no windows has left it where it was. (The second press of a double
    // click on the button comes too early to tell.)
    if (Event->type() == QEvent::MouseButtonPress) ComeBack();
    if (!HasMeaning(Event)) return;
    const QPointF At = OnScreen(Event->position());
    SendMouseDown(ButtonOf(Event), static_cast<float>(At.x()), static_cast<float>(At.y()));
    AfterEvent();
}

void GameWindow::mouseReleaseEvent(QMouseEvent* Event)
{
    if (!HasMeaning(Event)) return;
    const QPointF At = OnScreen(Event->position());
    SendMouseUp(ButtonOf(Event), static_cast<float>(At.x()), static_cast<float>(At.y()));
    AfterEvent();
}

void GameWindow::keyPressEvent(QKeyEvent* Event)
{
    const auto Has = [&](Qt::KeyboardModifier Modifier) {
        return Event->modifiers().testFlag(Modifier);
    };
    static const std::map<int, const char*> Arrows = {{Qt::Key_Up, "up"},
                                                      {Qt::Key_Down, "down"},
                                                      {Qt::Key_Left, "left"},
                                                      {Qt::Key_Right, "right"}};
    const auto Arrow = Arrows.find(Event->key());
    const std::string Key = Arrow != Arrows.end() ? Arrow->second : Event->text().toStdString();
    SendKeyDown(Key, Has(Qt::ShiftModifier), Has(Qt::ControlModifier), Has(Qt::AltModifier));
    AfterEvent();
}

void GameWindow::closeEvent(QCloseEvent* Event)
{
    if (!Ended) ShutdownDisplay();
    Event->accept();
    AfterEvent();
}

// How a minimised window is told to be back differs by desktop, and comes in any order. Each of
// them makes it active again.
void GameWindow::changeEvent(QEvent* Event)
{
    if (Event->type() == QEvent::ActivationChange && isActiveWindow()) ComeBack();
}

bool GameWindow::event(QEvent* Event)
{
    if (Event->type() == QEvent::ToolTip) {
        const auto* Help = static_cast<QHelpEvent*>(Event);
        const QPointF At = OnScreen(Help->pos());
        const Element* Hit = HitTest(static_cast<float>(At.x()), static_cast<float>(At.y()));
        if (Hit && !Hit->ToolTip.empty())
            QToolTip::showText(Help->globalPos(), QString::fromStdString(Hit->ToolTip), this);
        else
            QToolTip::hideText();
        return true;
    }
    return QWidget::event(Event);
}

constexpr int MostPasses = 6;

void GameWindow::paintEvent(QPaintEvent* Event)
{
    const ScreenView Shown = View();
    QPainter Painter(this);
    // From here on a unit is one pixel of the device: pictures and edges stay sharp.
    Painter.scale(1 / Shown.Ratio, 1 / Shown.Ratio);
    // A few places one by one; many of them, as after a deal, in one pass.
    QRegion Region = Event->region();
    if (Region.rectCount() > MostPasses) Region = Region.boundingRect();
    for (const QRect& Logical : Region) {
        const QRect Clip = QRectF(Logical.x() * Shown.Ratio, Logical.y() * Shown.Ratio,
                                  Logical.width() * Shown.Ratio, Logical.height() * Shown.Ratio)
                               .toAlignedRect();
        Painter.setClipRect(Clip);
        PaintScreen(Painter, Shown, Clip);
    }
}

void DeliverTrackEnded()
{
    ActiveMP31_StateChange(3);
    AfterEvent();
}

// --- the platform ---

static DateTime Now()
{
    const QDateTime Time = QDateTime::currentDateTime();
    return {Time.date().year(), Time.date().month(),  Time.date().day(),
            Time.time().hour(), Time.time().minute(), Time.time().second()};
}

static void Yield()
{
    if (!Window || Ended) return;
    BringUpWindow();
    UpdateStale();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

static void ReportFatal(const std::string& Text)
{
    std::cerr << "pagodas: " << Text << std::endl;
    QMessageBox::critical(nullptr, "Pagodas", QString::fromStdString(Text));
}

static void OpenAddress(const std::string& Address)
{
    // A page that ships with the game is named by its path below the game directory.
    QDesktopServices::openUrl(Address[0] == '\\'
                                  ? QUrl::fromLocalFile(QString::fromStdString(HostPath(Address)))
                                  : QUrl(QString::fromStdString(Address)));
}

void FillPlatform()
{
    SinceStart.start();
    Platform.PlaySoundFile = PlayEffect;
    Platform.MusicStop = MusicStop;
    Platform.MusicSetFile = MusicSetFile;
    Platform.MusicPlay = MusicPlay;
    Platform.ModeSet = [](int Width, int) { FullScreen = Width != 0; };
    Platform.WindowPlace = [](int, int) {
        if (Window && ScreenOnShow == &frmMain && !ShownFullScreen) PlaceWindow(frmMain);
    };
    Platform.Minimize = [] {
        Minimised = true;
        Window->showMinimized();
    };
    Platform.OpenAddress = OpenAddress;
    Platform.Now = Now;
    Platform.Milliseconds = [] { return static_cast<long long>(SinceStart.elapsed()); };
    Platform.Yield = Yield;
    Platform.ReportFatal = ReportFatal;
    Platform.ReportTrouble = [](const std::string& Text) {
        std::cerr << "pagodas: " << Text << std::endl;
        ShowTextNote(Text);
    };
    Platform.End = [] { Ended = true; };
}

void OpenGameWindow()
{
    const QScreen* Desktop = QApplication::primaryScreen();
    DesktopWidth = Desktop->geometry().width();
    DesktopHeight = Desktop->geometry().height();
    DesktopDots = qRound(Desktop->logicalDotsPerInchX());

    Window = new GameWindow;
    Window->setWindowTitle("Pagodas");
    Window->setWindowIcon(QIcon(QString::fromStdString(HostPath("\\ICON\\64.png"))));
    Window->setMouseTracking(true);
    Window->setAttribute(Qt::WA_OpaquePaintEvent);
    Window->setFocusPolicy(Qt::StrongFocus);
    Clock = new QTimer(Window);
    Clock->setSingleShot(true);
    Clock->setTimerType(Qt::PreciseTimer);
    QObject::connect(Clock, &QTimer::timeout, Window, [] {
        RunDueTimers(SinceStart.elapsed());
        AfterEvent();
    });
    StartSound(Window);
    SplashLoad();
    AfterEvent();
}
