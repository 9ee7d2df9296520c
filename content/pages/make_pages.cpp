// make_pages.cpp: the pages that ship with the game. "make-pages OUTDIR" writes the guide to
// content packs, and the credits gathered from the CREDITS file of every maker.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

[[noreturn]] static void Fail(const std::string& Text)
{
    std::cerr << "make-pages: " << Text << std::endl;
    std::exit(1);
}

static std::string ReadText(const fs::path& Path)
{
    std::ifstream File(Path, std::ios::binary);
    if (!File) Fail("cannot read " + Path.string());
    std::ostringstream Text;
    Text << File.rdbuf();
    return Text.str();
}

static void WriteText(const fs::path& Path, const std::string& Text)
{
    fs::create_directories(Path.parent_path());
    std::ofstream File(Path, std::ios::binary);
    File << Text;
    if (!File.flush()) Fail("cannot write " + Path.string());
}

static std::string Escaped(const std::string& Text)
{
    std::string Result;
    for (char C : Text) {
        if (C == '<')
            Result += "&lt;";
        else if (C == '>')
            Result += "&gt;";
        else if (C == '&')
            Result += "&amp;";
        else
            Result += C;
    }
    return Result;
}

int main(int Count, char** Arguments)
{
    if (Count != 2) Fail("usage: make-pages OUTDIR");
    const fs::path Out = Arguments[1], Content = CONTENT_DIR;

    std::vector<fs::path> Files;
    for (const fs::directory_entry& Topic : fs::directory_iterator(Content))
        if (fs::exists(Topic.path() / "CREDITS")) Files.push_back(Topic.path() / "CREDITS");
    std::sort(Files.begin(), Files.end());
    if (Files.empty()) Fail("no CREDITS file in " + Content.string());
    std::string Credits =
        "Pagodas 8.0\n\nThe program, its drawings, paintings, music and sounds: the "
        "Pagodas developers, MIT licence.\nWhat its makers read from Debian's "
        "packages, topic by topic:\n";
    for (const fs::path& File : Files)
        Credits += "\n== " + File.parent_path().filename().string() + " ==\n\n" + ReadText(File);
    WriteText(Out / "CREDITS", Credits);

    // The credits wear the clothes of the guide to packs.
    const std::string Guide = ReadText(Content / "pages" / "packs.html");
    WriteText(Out / "DATA" / "packs.html", Guide);
    const std::size_t Main = Guide.find("<main>");
    if (Main == std::string::npos) Fail("packs.html has no <main>");
    std::string Head = Guide.substr(0, Main);
    const std::string Title = "Content packs for Pagodas";
    Head.replace(Head.find(Title), Title.size(), "Credits of Pagodas");
    WriteText(Out / "DATA" / "credits.html",
              Head +
                  "<main>\n<h1>Credits</h1>\n<pre style=\"white-space: pre-wrap; font: 14px/1.5 "
                  "'DejaVu Sans', sans-serif\">" +
                  Escaped(Credits) + "</pre>\n</main>\n</body>\n</html>\n");
    return 0;
}
