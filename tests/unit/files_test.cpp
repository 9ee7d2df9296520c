// Files far larger than anything that the game makes, and pictures cut or damaged.
#include "frame/elements.h"
#include "frame/files.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace
{

struct Files : testing::Test {
    Files()
    {
        std::string Name = "/tmp/pagodas-files-XXXXXX";
        EXPECT_NE(mkdtemp(Name.data()), nullptr);
        GameDirectory = Name;
        std::filesystem::create_directory(Name + "/DATA");
    }
    ~Files() override
    {
        std::filesystem::remove_all(GameDirectory);
        GameDirectory = ".";
    }
    // The rest is a hole, which takes no room on the disk.
    static void PutHuge(const std::string& Start)
    {
        const std::string Path = HostPath("\\DATA\\XP0001");
        std::ofstream(Path, std::ios::binary) << Start;
        std::filesystem::resize_file(Path, 10LL << 30);
    }
    static std::string TroubleOf(const std::string& Picture)
    {
        std::ofstream(HostPath("\\DATA\\BD0001"), std::ios::binary) << Picture;
        return PictureFileTrouble("\\DATA\\BD0001", 1024, 768);
    }
};

} // namespace

TEST_F(Files, OnlyTheBytesThatAreNeededAreRead)
{
    PutHuge("pagodas");
    Bytes Content;
    ASSERT_TRUE(ReadFileStart("\\DATA\\XP0001", Content, 9));
    EXPECT_EQ(std::string(Content.begin(), Content.end()), std::string("pagodas\0\0", 9));
    EXPECT_LT(Content.capacity(), 1000U);
    std::ofstream(HostPath("\\DATA\\XP0001")) << "short";
    ASSERT_TRUE(ReadFileStart("\\DATA\\XP0001", Content, 9));
    EXPECT_EQ(std::string(Content.begin(), Content.end()), "short");
    std::ofstream(HostPath("\\DATA\\XP0001")) << "s";
    ASSERT_TRUE(ReadFileStart("\\DATA\\XP0001", Content, 9));
    EXPECT_EQ(std::string(Content.begin(), Content.end()), "s");
    EXPECT_FALSE(ReadFileStart("\\DATA", Content, 9));
    EXPECT_FALSE(ReadFileStart("\\DATA\\XP0002", Content, 9));
    EXPECT_TRUE(Content.empty());
}

TEST_F(Files, WhatWasReadIsClosed)
{
    const auto OpenFiles = [] {
        const std::filesystem::directory_iterator All("/proc/self/fd");
        return std::distance(begin(All), end(All));
    };
    std::ofstream(HostPath("\\DATA\\XP0001")) << "pagodas";
    const auto Before = OpenFiles();
    Bytes Content;
    EXPECT_TRUE(ReadFileStart("\\DATA\\XP0001", Content, 9));
    EXPECT_FALSE(ReadFileStart("\\DATA", Content, 9));
    EXPECT_EQ(PictureFileTrouble("\\DATA\\XP0001", 9, 9), "is no picture (PNG, JPEG or BMP)");
    EXPECT_EQ(OpenFiles(), Before);
}

// Each empty chunk would be a step of twelve bytes.
TEST_F(Files, AHugePictureOfEmptyChunksIsRefusedAtOnce)
{
    PutHuge("\x89PNG\r\n\x1a\n");
    EXPECT_EQ(PictureFileTrouble("\\DATA\\XP0001", 1024, 768), "is cut short");
}

TEST_F(Files, TheLastChunkOfAPictureMustBeWhole)
{
    std::string Png("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\4\0\0\0\3\0\x8\2\0\0\0crc.", 33);
    Png += std::string("\0\0\0\0IENDcrc.", 12);
    EXPECT_EQ(TroubleOf(Png), "");
    Png[36] = 1; // one byte of data more than there is
    EXPECT_EQ(TroubleOf(Png), "is cut short");
}

TEST_F(Files, TheHeightOfABitmapMayBeAnyNumber)
{
    std::string Bmp("BM\x1e\0\0\0\0\0\0\0\x1a\0\0\0\x28\0\0\0\0\4\0\0\0\3\0\0\1\0\x18\0", 30);
    EXPECT_EQ(TroubleOf(Bmp), "");
    Bmp.replace(22, 4, "\0\xfd\xff\xff", 4); // -768: rows from the top
    EXPECT_EQ(TroubleOf(Bmp), "");
    Bmp.replace(22, 4, "\0\0\0\x80", 4);
    EXPECT_EQ(TroubleOf(Bmp), "is 1024 by 2147483648 pixels and should be 1024 by 768");
}
