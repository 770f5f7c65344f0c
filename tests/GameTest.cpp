// The game's events and its puzzle files.
#include "GameFixture.h"

#include <sys/stat.h>

namespace tessarin {

class GameTest : public GameFixture {
protected:
    GameTest() {
        platform.Folder = folder;
        mCommands["tocsv"] = [this](int, auto& name) { game.FileExportCSV(Path(name)); };
        mCommands["tosdk"] = [this](int, auto& name) { game.FileExportSDK(Path(name)); };
        mCommands["fromcsv"] = [this](int, auto& name) { game.FileImportCSV(Path(name)); };
        mCommands["fromsdk"] = [this](int, auto& name) { game.FileImportSDK(Path(name)); };
        mCommands["charset"] = [this](int, auto& name) { Tell(DetectCharset(Path(name))); };
    }
    std::string Path(const std::string& name) { return name.empty() ? "" : folder + name; }
};

TEST_F(GameTest, ExportsCreateAFileOrTouchNothing) {
    std::filesystem::create_symlink(Path("nowhere"), Path("dangling"));
    std::filesystem::create_symlink(Path("mine"), Path("link"));
    Script("write mine mine");
    for (const char* const value : {"5", "6"}) // the second export within the same second
        Script(std::string("set 1 ") + value + R"(
            tocsv > & tosdk > & tosdk rows.txt > & tocsv -ä 'b";* > & tocsv mine > & tocsv link >
            tocsv dangling > & tocsv gone/grid > & tocsv . >
        )");
    Script(R"(
        read mine > mine & read -ä 'b";* > Index;Value;Locked|1;5;0
        read Tessarin-20220429-064952.csv > Index;Value;Locked|1;5;0
        csv & fromsdk Tessarin-20220429-064952.sdk & is > |1;5;1 & fromsdk rows.txt & is > |1;5;1
    )");
    const auto files = std::filesystem::directory_iterator(folder);
    EXPECT_EQ(std::distance(begin(files), end(files)), 7);
}

TEST_F(GameTest, UnusableFilesCountAsEmptyAndOnlyCSVResetsThePlayer) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", Path("endless"));
    Script("fill 5");
    for (const auto& [name, text, charset] :
         {std::tuple{"wide", grid.TextCSV(), "unicode"},
          {"marked", BomUtf8() + grid.TextCSV(), ""},
          {"binary", std::string(100000, '\0') + "\xFF\xFE\r\n;;;", ""}})
        WriteTextFile(Path(name), text, charset, false);
    for (const std::string name : {"pipe", "endless", "wide", "marked", "binary", "missing", "."}) {
        Script("fill 5 & trace 4 & fromsdk " + name + " > & is > |1;5;0");
        Script("fromcsv " + name + " > Init [none] & is >");
    }
    Script(R"(
        fill 5 & tosdk rows & fill & trace 4 & fromsdk rows > Init & is > |1;5;1
        write bad Index;Value;Locked|1;9;1|x
        fromcsv bad > Init ! "x" is not a whole number & is > |1;9;1
        write good Index;Value;Locked|2;9;1 & fromcsv good > Init [none] & is > |2;9;1 & tracing 0 >
    )");
}

TEST_F(GameTest, TextFilesKeepEveryByte) {
    std::string bytes = BomUtf8() + "a\r\nb\nc\r";
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    const std::string wide = Path("wide");
    Script("write all old & write short \xEF\xBB & write empty");
    EXPECT_EQ(WriteTextFile(Path("all"), bytes, "utf-8", true), "");
    EXPECT_EQ(ReadTextFile(Path("all")), bytes);
    EXPECT_EQ(WriteTextFile(wide, "AB", "unicode", false), "");
    EXPECT_EQ(ReadTextFile(wide), std::string("A\0B\0", 4));
    EXPECT_EQ(WriteTextFile(wide, "", "", false), "File=" + wide + ", Err=File exists");
    EXPECT_EQ(WriteTextFile("/dev/full", "x", "", true),
              "File=/dev/full, Err=No space left on device");
    WriteTextFile(Path("bom"), BomUnicode(), "", false);
    Script(R"(
        charset all > utf-8 & charset bom > unicode & charset wide > x-ansi
        charset short > x-ansi & charset empty > & charset missing > & charset . >
    )");
}

} // namespace tessarin
