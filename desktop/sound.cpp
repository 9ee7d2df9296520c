// sound.cpp: music and effects on SDL_mixer. Without a device, or with a file that is missing or
// broken, there is silence and no message.
#include "desktop/desktop.h"
#include "frame/files.h"
#include "media/media.h"

#include <QObject>
#include <QTimer>

#include <SDL.h>
#include <SDL_mixer.h>

#include <atomic>
#include <map>
#include <thread>

constexpr int Rate = 44100, Stereo = 2, BufferFrames = 2048;
constexpr int EffectVoice = 0;
// A track that cannot be played is passed over after so long, not at once: thirty missing files
// must not race by.
constexpr int BrokenTrackSeconds = 10;

static QObject* Receiver = nullptr; // on the interface thread
static std::thread Opening;
static std::atomic<bool> Ready = false; // the device is open
static std::string TrackFile;
static bool PlayWanted = false;
static Mix_Music* Track = nullptr;
static std::atomic<int> TrackNumber = 0; // goes up with every stop, so that a late end is known
static std::map<std::string, Mix_Chunk*> Effects;

static void TellTrackEnded(int Number)
{
    QMetaObject::invokeMethod(
        Receiver,
        [Number] {
            if (Number == TrackNumber) ActiveMP31_StateChange(3);
        },
        Qt::QueuedConnection);
}

// On the mixer's thread; also after a stop, which has moved TrackNumber on.
static void OnMusicFinished()
{
    TellTrackEnded(TrackNumber);
}

static void PlayTrack()
{
    if (!Ready || !PlayWanted) return;
    Track = Mix_LoadMUS(HostPath(TrackFile).c_str());
    if (Track && Mix_PlayMusic(Track, 1) == 0) return;
    const int Number = TrackNumber;
    QTimer::singleShot(BrokenTrackSeconds * 1000, Receiver, [Number] { TellTrackEnded(Number); });
}

static void OpenDevice()
{
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_Init(SDL_INIT_AUDIO) != 0) return;
    if (Mix_OpenAudio(Rate, MIX_DEFAULT_FORMAT, Stereo, BufferFrames) != 0) return;
    Mix_AllocateChannels(1);
    Mix_HookMusicFinished(OnMusicFinished);
    Ready = true;
    QMetaObject::invokeMethod(
        Receiver,
        [] {
            if (!Track) PlayTrack();
        },
        Qt::QueuedConnection);
}

void StartSound(QObject* OnInterfaceThread)
{
    Receiver = OnInterfaceThread;
    Opening = std::thread(OpenDevice);
}

void StopSound()
{
    if (Opening.joinable()) Opening.join();
    if (!Ready) return;
    ++TrackNumber;
    Mix_HookMusicFinished(nullptr);
    Mix_HaltMusic();
    Mix_CloseAudio();
}

void MusicStop()
{
    ++TrackNumber;
    PlayWanted = false;
    if (!Ready) return;
    Mix_HaltMusic();
    if (Track) Mix_FreeMusic(Track);
    Track = nullptr;
}

void MusicSetFile(const std::string& File)
{
    TrackFile = File;
}

void MusicPlay()
{
    if (PlayWanted) MusicStop();
    PlayWanted = true;
    PlayTrack();
}

void PlayEffect(const std::string& File)
{
    if (!Ready) return;
    Mix_Chunk*& Effect = Effects[File];
    if (!Effect) Effect = Mix_LoadWAV(HostPath(File).c_str());
    if (!Effect) return;
    Mix_PlayChannel(EffectVoice, Effect, 0); // one voice: cuts off the effect before
}
