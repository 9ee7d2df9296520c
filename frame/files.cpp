#include "frame/files.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

std::string GameDirectory = ".";

std::string HostPath(std::string_view Path)
{
    std::string Host = GameDirectory + std::string(Path);
    std::replace(Host.begin() + static_cast<std::ptrdiff_t>(GameDirectory.size()), Host.end(), '\\',
                 '/');
    return Host;
}

std::string FourDigits(int Number)
{
    const std::string Digits = "0000" + std::to_string(Number);
    return Digits.substr(Digits.size() - 4);
}

std::string DataFile(std::string_view Prefix, int Number)
{
    return "\\DATA\\" + std::string(Prefix) + FourDigits(Number);
}

bool FileExists(std::string_view Path)
{
    struct stat Status;
    return stat(HostPath(Path).c_str(), &Status) == 0 && S_ISREG(Status.st_mode);
}

bool ReadFileStart(std::string_view Path, Bytes& Content, std::size_t Most)
{
    Content.clear();
    const int Handle = OpenForReading(HostPath(Path));
    if (Handle == 0) return false;
    Content.resize(std::min(static_cast<std::size_t>(FileLength(Handle)), Most));
    const int Read = ReadAt(Handle, 0, Content.data(), static_cast<int>(Content.size()));
    CloseFile(Handle);
    Content.resize(static_cast<std::size_t>(Read));
    return true;
}

static bool WriteAndSync(int Handle, std::span<const std::uint8_t> Content)
{
    while (!Content.empty()) {
        const ssize_t Written = write(Handle, Content.data(), Content.size());
        if (Written < 0 && errno == EINTR) continue;
        if (Written < 0) return false;
        Content = Content.subspan(static_cast<std::size_t>(Written));
    }
    return fsync(Handle) == 0;
}

static void SyncFolder(const std::string& Folder)
{
    const int Handle = open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (Handle < 0) return; // the rename has happened; only its moment is less certain
    fsync(Handle);
    close(Handle);
}

// The file that a save writes into carries the number of its process, which keeps two games in one
// directory from writing into one another's.
constexpr std::string_view BesideEnding = ".new";

// 0 when the name is not that of a file beside the one of the name Final.
static pid_t SavingProcess(std::string_view Name, std::string_view Final)
{
    if (!Name.starts_with(Final)) return 0;
    Name.remove_prefix(Final.size());
    if (!Name.starts_with(BesideEnding)) return 0;
    Name.remove_prefix(BesideEnding.size());
    pid_t Process = 0;
    const auto [End, Error] = std::from_chars(Name.data(), Name.data() + Name.size(), Process);
    return Error == std::errc() && End == Name.data() + Name.size() && Process > 0 ? Process : 0;
}

// Of saves whose process was killed; the others may be under way.
static void RemoveLeftovers(const std::string& Folder, const std::string& Final)
{
    DIR* Listing = opendir(Folder.c_str());
    if (Listing == nullptr) return;
    while (const dirent* Entry = readdir(Listing)) {
        const pid_t Process = SavingProcess(Entry->d_name, Final);
        if (Process != 0 && kill(Process, 0) != 0 && errno == ESRCH)
            unlink((Folder + "/" + Entry->d_name).c_str());
    }
    closedir(Listing);
}

bool WriteWholeFile(std::string_view Path, std::span<const std::uint8_t> Content, std::string& Why)
{
    const std::string Final = HostPath(Path);
    const std::size_t Slash = Final.rfind('/');
    const std::string Folder = Final.substr(0, Slash);
    mkdir(Folder.c_str(), 0777);
    RemoveLeftovers(Folder, Final.substr(Slash + 1));
    const std::string Beside = Final + std::string(BesideEnding) + std::to_string(getpid());
    const int Handle = open(Beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    bool Done = Handle >= 0 && WriteAndSync(Handle, Content);
    if (!Done) Why = std::strerror(errno);
    if (Handle >= 0 && close(Handle) != 0 && Done) {
        Why = std::strerror(errno);
        Done = false;
    }
    if (Done && rename(Beside.c_str(), Final.c_str()) != 0) {
        Why = std::strerror(errno);
        Done = false;
    }
    if (!Done) {
        if (Handle >= 0) unlink(Beside.c_str());
        return false;
    }
    SyncFolder(Folder);
    return true;
}

static int OpenFileFor(const std::string& Path, int Access)
{
    const int Handle = open(Path.c_str(), Access | O_NONBLOCK | O_CLOEXEC);
    if (Handle < 0) return 0;
    struct stat Status;
    if (fstat(Handle, &Status) != 0 || !S_ISREG(Status.st_mode)) {
        close(Handle);
        return 0;
    }
    return Handle;
}

bool TakeLine(std::string_view& Text, std::string& Line)
{
    if (Text.empty()) return false;
    const std::size_t End = Text.find('\n');
    Line = Text.substr(0, End);
    if (!Line.empty() && Line.back() == '\r') Line.pop_back();
    Text.remove_prefix(End == std::string_view::npos ? Text.size() : End + 1);
    return true;
}

int OpenForReading(const std::string& Path)
{
    return OpenFileFor(Path, O_RDONLY);
}

int OpenForWriting(const std::string& Path)
{
    return OpenFileFor(Path, O_RDWR);
}

long long FileLength(int Handle)
{
    struct stat Status;
    return fstat(Handle, &Status) == 0 ? static_cast<long long>(Status.st_size) : 0;
}

int ReadAt(int Handle, long long Offset, void* Into, int Count)
{
    int Read = 0;
    while (Read < Count) {
        const ssize_t Got = pread(Handle, static_cast<char*>(Into) + Read,
                                  static_cast<std::size_t>(Count - Read), Offset + Read);
        if (Got < 0 && errno == EINTR) continue;
        if (Got <= 0) break;
        Read += static_cast<int>(Got);
    }
    return Read;
}

const char* MapFile(int Handle, long long Length)
{
    void* Map = mmap(nullptr, static_cast<std::size_t>(Length), PROT_READ, MAP_SHARED, Handle, 0);
    return Map == MAP_FAILED ? nullptr : static_cast<const char*>(Map);
}

void UnmapFile(const char* Map, long long Length)
{
    munmap(const_cast<char*>(Map), static_cast<std::size_t>(Length));
}

bool WriteAt(int Handle, long long Offset, const void* From, int Count)
{
    int Written = 0;
    while (Written < Count) {
        const ssize_t Put = pwrite(Handle, static_cast<const char*>(From) + Written,
                                   static_cast<std::size_t>(Count - Written), Offset + Written);
        if (Put < 0 && errno == EINTR) continue;
        if (Put <= 0) return false;
        Written += static_cast<int>(Put);
    }
    return true;
}

void CloseFile(int Handle)
{
    close(Handle);
}

void RemoveFile(const std::string& Path)
{
    unlink(Path.c_str());
}
