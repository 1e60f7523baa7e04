#include "cli/CommandLineFixture.h"
#include "cli/Json.h"
#include "language/Languages.h"

#include <fstream>

namespace velvane::cli {

TEST_F(CommandLineTest, NewWritesADemoWithTheDefaults)
{
    EXPECT_EQ(runWith({"new", path("a.velvane")}).status, 0);
    const Json demo = Json::parse(runWith({"inspect", "--json", path("a.velvane")}).out);
    EXPECT_EQ(demo["canvasSize"], Json::array({1280.0, 800.0}));
    EXPECT_EQ(demo["steps"].size(), 1U);
    EXPECT_EQ(demo["steps"][0]["summary"], "Switch to app");
}

TEST_F(CommandLineTest, NewReplacesAFileOnlyWhenForced)
{
    write("a.velvane", "precious");
    const Result refused = runWith({"new", path("a.velvane")});
    EXPECT_EQ(refused.status, 1);
    expectOneLine(refused.err);
    QFile file(folder.filePath("a.velvane"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "precious");

    EXPECT_EQ(runWith({"new", "--force", path("a.velvane")}).status, 0);
    EXPECT_EQ(runWith({"inspect", path("a.velvane")}).status, 0);
}

TEST_F(CommandLineTest, ConvertReadsXmlAndWritesBinary)
{
    write("a.xml", R"(<plist version="1.0"><dict><key>version</key><integer>7</integer>
        <key>steps</key><array><dict><key>kind</key><string>wait</string></dict></array>
        <key>startPoint</key><array><real>1</real><integer>2</integer></array>
        <key>canvasSize</key><array><real>30</real><real>20</real></array>
        <key>fps</key><integer>24</integer></dict></plist>)");
    EXPECT_EQ(Json::parse(runWith({"inspect", path("a.xml"), "--json"}).out)["version"], 7);
    ASSERT_EQ(runWith({"convert", path("a.xml"), path("a.velvane")}).status, 0);
    QFile file(folder.filePath("a.velvane"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("bplist00"));
    const Json demo = Json::parse(runWith({"inspect", path("a.velvane"), "--json"}).out);
    EXPECT_EQ(demo["version"], 1);
    EXPECT_EQ(demo["fps"], 24);
    EXPECT_EQ(demo["startPoint"], Json::array({1.0, 2.0}));
}

TEST_F(CommandLineTest, AFaultyDemoIsNamedWithItsFault)
{
    write("bad.velvane", R"(<plist version="1.0"><dict><key>version</key><integer>1</integer>
        <key>steps</key><array><dict><key>kind</key><string>jump</string></dict></array>
        <key>startPoint</key><array><real>1</real><real>2</real></array>
        <key>canvasSize</key><array><real>30</real><real>20</real></array>
        <key>fps</key><integer>24</integer></dict></plist>)");
    const Result result = runWith({"inspect", path("bad.velvane")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, path("bad.velvane") + ": step 1: unknown kind “jump”\n");
}

TEST_F(CommandLineTest, WhatCannotBeReadOrWrittenIsOneLine)
{
    const std::string demo = sample();
    const std::string nowhere = path("no/such/folder/x");
    const std::vector<std::vector<std::string>> faulty{
        {"inspect", path("missing")},
        {"inspect", folder.path().toStdString()},
        {"state", path("missing"), "--at", "0"},
        {"frame", demo, "--at", "0", "--output", nowhere},
        {"export", demo, nowhere},
        {"export", demo, folder.path().toStdString()},
        {"convert", demo, nowhere},
        {"new", nowhere},
    };
    for (const auto &arguments : faulty) {
        const Result result = runWith(arguments);
        EXPECT_EQ(result.status, 1) << arguments[0];
        EXPECT_EQ(result.out, "") << arguments[0];
        expectOneLine(result.err);
    }
}

TEST_F(CommandLineTest, ErrorsStayOneLineWhateverAFileIsCalled)
{
    const std::string demo = sample();
    ProjectFile odd;
    odd.canvasSize = {1e6, 1e6};
    const std::string name = path("a\n\x1b[31m\u202E%2%1.velvane");
    ASSERT_FALSE(DemoDocument::write(odd, QString::fromStdString(name)));
    for (const auto &arguments : {std::vector<std::string>{"new", name},
                                  {"frame", name, "--at", "0", "-o", path("a.png")},
                                  {"frame", name, "--at", "0", "-o", name},
                                  {"export", name, name},
                                  {"inspect", name + "x"},
                                  {"convert", demo, name + "/x"},
                                  {"export", demo, name + "/x"},
                                  {"frame", demo, "--at", "0", "-o", name + "/x"}}) {
        const Result result = runWith(arguments);
        EXPECT_EQ(result.status, 1) << arguments[0];
        expectOneLine(result.err);
        EXPECT_EQ(result.err.find('\x1b'), std::string::npos) << result.err;
        EXPECT_EQ(result.err.find("\u202E"), std::string::npos) << result.err;
    }
    EXPECT_NE(runWith({"frame", name, "--at", "0", "-o", path("a.png")})
                  .err.find("%2%1.velvane: a canvas of 1e+06 × 1e+06 cannot be drawn\n"),
              std::string::npos);
}

TEST_F(CommandLineTest, ALongPathDoesNotCutOffTheReason)
{
    std::string deep = folder.path().toStdString();
    while (deep.size() < 1000)
        deep += '/' + std::string(200, 'd');
    const Result result = runWith({"inspect", deep});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, deep + ": no such file\n");
}

TEST_F(CommandLineTest, ResultsThatCannotBeWrittenAreAFailure)
{
    // Has no room, and takes what is put into its buffer until that is flushed.
    std::ofstream full("/dev/full");
    ASSERT_TRUE(full.is_open());
    const std::string demo = sample();
    for (const std::vector<const char *> &argv :
         {std::vector<const char *>{"velvane", "inspect", demo.c_str()},
          {"velvane", "export", "--help"}}) {
        full.clear();
        std::ostringstream err;
        CommandLine line({.out = full, .err = err});
        const auto parsed = line.parse(static_cast<int>(argv.size()), argv.data());
        EXPECT_EQ(parsed ? *parsed : line.run(), 1);
        EXPECT_EQ(err.str(), "velvane: standard output cannot be written to\n");
    }
}

TEST_F(CommandLineTest, WrongUsageIsStatusTwoAndOneLine)
{
    const std::vector<std::vector<std::string>> wrong{
        {"--nonsense"},
        {"inspect"},
        {"state", "x"},
        {"state", "x", "--at", "soon"},
        {"state", "x", "--at", "nan"},
        {"state", "x", "--at", "inf"},
        {"frame", "x", "--at", "1"},
        {"export", "x"},
        {"export", "x", "y", "z"},
        {"new", "x", "--at", "1"},
        {"state", "x", "--at", "1", "--video-duration", "nan"}};
    for (const auto &arguments : wrong) {
        const Result result = runWith(arguments);
        EXPECT_EQ(result.status, 2) << arguments[0];
        expectOneLine(result.err);
    }
}

TEST_F(CommandLineTest, HelpOfEverySubcommandIsAResult)
{
    for (const char *name :
         {"new", "inspect", "state", "frame", "export", "convert", "run", "record", "doctor"}) {
        const Result result = runWith({name, "--help"});
        EXPECT_EQ(result.status, 0) << name;
        EXPECT_GT(result.out.size(), 200U) << name;
        EXPECT_EQ(result.err, "") << name;
    }
    EXPECT_EQ(runWith({"--version"}).out, "velvane " VELVANE_VERSION "\n");
}

TEST_F(CommandLineTest, HelpInAnotherLanguageHasOneGroupOfOptions)
{
    Languages::choose("de");
    const std::string help = runWith({"doctor", "--help"}).out;
    Languages::choose("en");
    EXPECT_EQ(help.find("Options:"), std::string::npos) << help;
    const std::size_t group = help.find("Optionen:");
    ASSERT_NE(group, std::string::npos) << help;
    EXPECT_LT(group, help.find("--help"));
    EXPECT_LT(group, help.find("--json"));
}

TEST_F(CommandLineTest, DoctorReportsALineForEachCapability)
{
    const Result result = runWith({"doctor"});
    EXPECT_EQ(result.status, 0);
    for (const char *what : {"Display server", "H.264 encoder", "Caption font", "Emoji"})
        EXPECT_NE(result.out.find(what), std::string::npos) << what;
}

TEST_F(CommandLineTest, WithoutASubcommandTheArgumentsAreDemosToOpen)
{
    CommandLine line;
    const std::array<const char *, 3> argv{"velvane", "a.velvane", "b.velvane"};
    EXPECT_FALSE(line.parse(3, argv.data()));
    EXPECT_FALSE(line.hasCommand());
    EXPECT_EQ(line.demos(), (std::vector<std::string>{"a.velvane", "b.velvane"}));
}

} // namespace velvane::cli
