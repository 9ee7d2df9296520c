// sound.cpp: music and effects on SDL_mixer. Without a device, or with a file that is missing or
// broken, there is silence and no message.
//
// The device is opened beside the interface when the first sound is wanted, and closed again when
// it has been silent for a while: an open device takes processor time even for silence.
#include "desktop/desktop.h"
#include "frame/files.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <SDL.h>
#include <SDL_mixer.h>

#include <atomic>
#include <map>
#include <thread>

constexpr int Rate = 44100, Stereo = 2, BufferFrames = 2048;
constexpr int EffectVoice = 0;
constexpr int SilentSeconds = 10;
// A track that cannot be played or is over at once is passed over after so long: thirty missing
// files must not race by.
constexpr int BrokenTrackWait = 10000, ShortestTrack = 500; // milliseconds

enum class Device { Closed, Opening, Open, Missing };

static QObject* Receiver = nullptr; // on the interface thread
static QTimer* Silence = nullptr;
static std::thread Opener;
static Device State = Device::Closed;
static std::string TrackFile, WaitingEffect;
static bool PlayWanted = false;
static Mix_Music* Track = nullptr;
static QElapsedTimer SinceTrackBegan;
static std::atomic<int> TrackNumber = 0; // goes up with every end and stop: a late end is known
static std::map<std::string, Mix_Chunk*> Effects;

static void TellTrackEnded(int Number, int Wait)
{
    QTimer::singleShot(Wait, Receiver, [Number] {
        if (Number != TrackNumber) return;
        ++TrackNumber; // told once
        DeliverTrackEnded();
    });
}

static void OnTrackFinished(int Number)
{
    const bool OverAtOnce = SinceTrackBegan.elapsed() < ShortestTrack;
    TellTrackEnded(Number, OverAtOnce ? BrokenTrackWait : 0);
}

// On the mixer's thread, or within a stop.
static void OnMusicFinished()
{
    QMetaObject::invokeMethod(
        Receiver, [Number = TrackNumber.load()] { OnTrackFinished(Number); }, Qt::QueuedConnection);
}

static void StartTrack()
{
    SinceTrackBegan.start();
    Track = Mix_LoadMUS(HostPath(TrackFile).c_str());
    if (!Track || Mix_PlayMusic(Track, 1) != 0) TellTrackEnded(TrackNumber, BrokenTrackWait);
}

static void StartEffect(const std::string& File)
{
    Mix_Chunk*& Effect = Effects[File];
    if (!Effect) Effect = Mix_LoadWAV(HostPath(File).c_str());
    if (Effect) Mix_PlayChannel(EffectVoice, Effect, 0); // one voice: cuts off the effect before
}

static void CloseWhenSilent()
{
    if (State != Device::Open || PlayWanted) return;
    if (Mix_Playing(EffectVoice)) {
        Silence->start();
        return;
    }
    for (const auto& [File, Effect] : Effects)
        if (Effect) Mix_FreeChunk(Effect);
    Effects.clear();
    Mix_CloseAudio();
    State = Device::Closed;
}

static void OnOpened(bool Opened)
{
    State = Opened ? Device::Open : Device::Missing;
    if (!Opened) return;
    if (PlayWanted && !Track) StartTrack();
    if (!WaitingEffect.empty()) StartEffect(WaitingEffect);
    WaitingEffect.clear();
    Silence->start();
}

// On a thread of its own: a sound server can take its time.
static void OpenDevice()
{
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    const bool Opened = SDL_Init(SDL_INIT_AUDIO) == 0 &&
                        Mix_OpenAudio(Rate, MIX_DEFAULT_FORMAT, Stereo, BufferFrames) == 0;
    if (Opened) {
        Mix_AllocateChannels(1);
        Mix_HookMusicFinished(OnMusicFinished);
    }
    QMetaObject::invokeMethod(
        Receiver, [Opened] { OnOpened(Opened); }, Qt::QueuedConnection);
}

// True when the device is open; else it is on its way, unless there is none.
static bool DeviceIsOpen()
{
    if (State == Device::Closed) {
        if (Opener.joinable()) Opener.join();
        State = Device::Opening;
        Opener = std::thread(OpenDevice);
    }
    return State == Device::Open;
}

void StartSound(QObject* OnInterfaceThread)
{
    Receiver = OnInterfaceThread;
    Silence = new QTimer(OnInterfaceThread);
    Silence->setSingleShot(true);
    Silence->setInterval(SilentSeconds * 1000);
    QObject::connect(Silence, &QTimer::timeout, OnInterfaceThread, CloseWhenSilent);
}

void StopSound()
{
    if (Opener.joinable()) Opener.join();
    ++TrackNumber;
    if (State != Device::Open) return;
    Mix_HookMusicFinished(nullptr);
    Mix_HaltMusic();
    Mix_CloseAudio();
}

void MusicStop()
{
    PlayWanted = false;
    if (Track) {
        Mix_HaltMusic(); // tells the end of the track that it stops, also of one that has ended
        Mix_FreeMusic(Track);
        Track = nullptr;
    }
    ++TrackNumber;
    if (State == Device::Open) Silence->start();
}

void MusicSetFile(const std::string& File)
{
    TrackFile = File;
}

void MusicPlay()
{
    if (PlayWanted) MusicStop();
    PlayWanted = true;
    if (DeviceIsOpen()) StartTrack();
}

void PlayEffect(const std::string& File)
{
    if (DeviceIsOpen()) {
        StartEffect(File);
        Silence->start();
    } else {
        WaitingEffect = File; // the newest one cuts off the others
    }
}
