#include "host/CommandLine.h"

#include <gtest/gtest.h>

#include <vector>

using namespace host;

namespace {

CommandLine Parsed(std::vector<const wchar_t*> arguments) { return ParseCommandLine(arguments); }

TEST(CommandLine, IsGoodWithoutArguments) {
  const CommandLine line = Parsed({});
  EXPECT_TRUE(line.problem.empty());
  EXPECT_FALSE(line.help || line.offerDocument || line.printer || line.writeFile || line.settingsFile);
}

TEST(CommandLine, TakesOptionsAndTheFileInAnyOrder) {
  for (const auto& arguments :
       {std::vector<const wchar_t*>{L"my.ini", L"--document", L"--printer", L"P 1", L"--write", L"out.ini"},
        std::vector<const wchar_t*>{L"--write", L"out.ini", L"--printer", L"P 1", L"my.ini", L"--document"}}) {
    const CommandLine line = Parsed(arguments);
    EXPECT_EQ(line.problem, L"");
    EXPECT_TRUE(line.offerDocument);
    EXPECT_EQ(line.printer, L"P 1");
    EXPECT_EQ(line.writeFile, L"out.ini");
    EXPECT_EQ(line.settingsFile, L"my.ini");
  }
}

TEST(CommandLine, CheckConfTakesFiles) {
  CommandLine line = Parsed({L"--check-conf", L"a.conf"});
  EXPECT_EQ(line.problem, L"");
  EXPECT_TRUE(line.checkConf);
  EXPECT_EQ(line.confFiles, (std::vector<std::wstring>{L"a.conf"}));
  EXPECT_FALSE(line.settingsFile);
  line = Parsed({L"--check-conf", L"a b.conf", L"NEMpdf.conf", L"a b.conf"});
  EXPECT_EQ(line.problem, L"");
  EXPECT_EQ(line.confFiles, (std::vector<std::wstring>{L"a b.conf", L"NEMpdf.conf", L"a b.conf"}));
}

TEST(CommandLine, HelpHasThreeNamesAndWinsOverProblems) {
  for (const wchar_t* help : {L"--help", L"-h", L"/?"}) {
    EXPECT_TRUE(Parsed({help}).help);
    EXPECT_TRUE(Parsed({L"--nothing", help}).help);
  }
}

TEST(CommandLine, SaysWhatIsWrong) {
  const struct {
    std::vector<const wchar_t*> arguments;
    const wchar_t* problem;
  } rows[] = {
      {{L"--nothing"}, L"unknown option --nothing"},
      {{L"-x"}, L"unknown option -x"},
      {{L"--Document"}, L"unknown option --Document"},
      {{L"--printer"}, L"--printer needs a printer's name"},
      {{L"--printer", L""}, L"--printer needs a printer's name"},
      {{L"--printer", L"--document"}, L"--printer needs a printer's name"},
      {{L"--write"}, L"--write needs a file name"},
      {{L"--write", L"a", L"--write", L"b"}, L"--write is given twice"},
      {{L"--printer", L"a", L"--printer", L"b"}, L"--printer is given twice"},
      {{L"a.ini", L"b.ini"}, L"the settings file is given twice"},
      {{L""}, L"an empty file name"},
      {{L"--check-conf"}, L"--check-conf needs a file name"},
      {{L"--check-conf", L""}, L"an empty file name"},
      {{L"--check-conf", L"--nothing"}, L"unknown option --nothing"},
      {{L"a.ini", L"--check-conf", L"b.conf"}, L"--check-conf takes configuration files and nothing else"},
      {{L"--check-conf", L"b.conf", L"--document"}, L"--check-conf takes configuration files and nothing else"},
      {{L"--check-conf", L"b.conf", L"--printer", L"x"}, L"--check-conf takes configuration files and nothing else"},
      {{L"--check-conf", L"b.conf", L"--write", L"x"}, L"--check-conf takes configuration files and nothing else"},
      {{L"--first", L"--second"}, L"unknown option --first"},
  };
  for (const auto& row : rows) EXPECT_EQ(Parsed(row.arguments).problem, row.problem);
}

TEST(CommandLine, UsageNamesEveryOption) {
  const std::wstring usage = UsageText();
  for (const wchar_t* option : {L"--document", L"--printer", L"--write", L"--check-conf", L"--help"})
    EXPECT_NE(usage.find(option), usage.npos);
}

}  // namespace
