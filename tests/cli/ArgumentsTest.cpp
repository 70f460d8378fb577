// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Arguments.h"

#include <gtest/gtest.h>

#include "app/core/LookValues.h"
#include "cli/ExitCode.h"
#include "cli/Terminal.h"

namespace quorvane::cli {
namespace {

struct Outcome {
  int exitCode = -1;  ///< -1: go on with the arguments
  Arguments arguments;
  std::string output;
  std::string complaint;
};

Outcome parse(std::vector<std::string> words) {
  words.insert(words.begin(), "quorvane");
  std::vector<const char*> argv;
  for (const std::string& word : words) argv.push_back(word.c_str());
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  auto parsed = parseArguments(static_cast<int>(argv.size()), argv.data());
  Outcome outcome;
  std::fflush(nullptr);
  outcome.output = ::testing::internal::GetCapturedStdout();
  outcome.complaint = ::testing::internal::GetCapturedStderr();
  if (auto* finished = std::get_if<Finished>(&parsed)) outcome.exitCode = finished->exitCode;
  if (auto* arguments = std::get_if<Arguments>(&parsed)) outcome.arguments = *arguments;
  return outcome;
}

TEST(Arguments, ReadALookAndFoldersAsRawBytes) {
  const auto outcome = parse({"apply", "--label", "A\\nB\\\\n", "--color", "#b0002080", "--effect", "soft", "--center",
                              "10,-2.5", "--opacity", "0.5", "--json", "--", "-odd", "caf\xE9", "new\nline "});
  ASSERT_EQ(outcome.exitCode, -1) << outcome.complaint;
  const Arguments& arguments = outcome.arguments;
  EXPECT_EQ(arguments.look.label, QStringLiteral("A\nB\\n"));
  EXPECT_EQ(arguments.look.color, QColor(0xB0, 0, 0x20, 0x80));
  EXPECT_EQ(arguments.look.effectTag, 1);
  EXPECT_EQ(arguments.look.labelCenter, (Point{10, -2.5F}));
  EXPECT_EQ(arguments.form, OutputForm::Json);
  EXPECT_EQ(arguments.paths, (std::vector<std::filesystem::path>{"-odd", "caf\xE9", "new\nline "}));
  EXPECT_EQ(parse({"status", "A", "--", "-x", "--"}).arguments.paths,
            (std::vector<std::filesystem::path>{"A", "-x", "--"}));
  EXPECT_TRUE(parse({"apply", "x"}).arguments.look.label.isNull());
}

TEST(Arguments, AnEmptyValueTakesNoFolderForItsOwn) {
  const auto outcome = parse({"apply", "--label=", "--color=", "--base", "x.png", "A", "B"});
  ASSERT_EQ(outcome.exitCode, -1) << outcome.complaint;
  EXPECT_TRUE(outcome.arguments.look.label.isEmpty());
  EXPECT_EQ(outcome.arguments.paths, (std::vector<std::filesystem::path>{"A", "B"}));
  EXPECT_EQ(parse({"apply", "--base", "x", "--", "--label="}).arguments.paths.front(), "--label=");
  EXPECT_EQ(parse({"apply", "--label=a=", "A"}).arguments.look.label, QStringLiteral("a="));
}

TEST(Arguments, NameWhereManyFoldersAndTheirLookComeFrom) {
  const auto outcome = parse({"apply", "--look", "a.look", "--label=", "--size", "12", "--files-from", "-", "-0", "-j",
                              "3", "--fail-fast", "--no-color", "A"});
  ASSERT_EQ(outcome.exitCode, -1) << outcome.complaint;
  const Arguments& arguments = outcome.arguments;
  EXPECT_EQ(arguments.lookFile, "a.look");
  EXPECT_EQ(arguments.lookOptions, (std::vector<std::pair<std::string, std::string>>{{"label", ""}, {"size", "12"}}));
  EXPECT_EQ(arguments.filesFrom, "-");
  EXPECT_TRUE(arguments.isNull && arguments.failsFast && !arguments.wantsColor && !arguments.rowsFrom);
  EXPECT_EQ(arguments.jobs, 3);
  EXPECT_GE(parse({"reset", "A"}).arguments.jobs, 1);
  EXPECT_EQ(parse({"apply", "--from", "t.csv"}).arguments.rowsFrom, "t.csv");
  EXPECT_EQ(parse({"render", "--save-look", "x", "o.png"}).arguments.savedLook, "x");
}

TEST(Arguments, TheEndingOfARenderedFileSaysWhatItIs) {
  using enum PictureKind;
  const std::pair<const char*, std::optional<PictureKind>> rows[] = {{"-", Png},           {"a", Png},
                                                                     {"a.png", Png},       {"A.JPG", Jpeg},
                                                                     {"a.jpeg", Jpeg},     {"a.tif", Tiff},
                                                                     {"a.tiff", Tiff},     {"b.png/a.gif", Gif},
                                                                     {"b.gif/a", Png},     {"a.icns", IconFamily},
                                                                     {"a.", std::nullopt}, {"a.bmp", std::nullopt}};
  for (const auto& [name, kind] : rows) EXPECT_EQ(pictureKindOf(name), kind) << name;
  const auto outcome = parse({"render", "--quality", "70", "--max-size", "40", "a.jpg"});
  EXPECT_EQ(outcome.arguments.jpeg.quality, 70);
  EXPECT_EQ(outcome.arguments.jpeg.limit.bytes().value, 40960U);
}

TEST(Arguments, WrongUseSaysWhatAndEndsWithTwo) {
  struct Row {
    std::vector<std::string> words;
    std::string complaint;
  };
  for (const Row& row : {
           Row{{"apply"}, "FOLDER"},
           Row{{"apply", "--colour", "red", "x"}, "did you mean --color?"},
           Row{{"apply", "--size", "12,5", "x"}, "--size takes a number"},
           Row{{"apply", "--size", "nan", "x"}, "--size takes a number"},
           Row{{"apply", "--opacity", "2", "x"}, "from 0 to 1"},
           Row{{"apply", "--effect", "blurry", "x"}, "no effect 'blurry'; use none, soft, medium"},
           Row{{"apply", "--color", "#12", "x"}, "no colour"},
           Row{{"apply", "--center", "5", "x"}, "X,Y"},
           Row{{"apply", "--label", "\xFF", "x"}, "not UTF-8"},
           Row{{"apply", "--label", "a", "--label-from-name", "x"}, "exclude each other"},
           Row{{"status", "--json", "--json-lines", "x"}, "exclude each other"},
           Row{{"revert", ""}, "empty path"},
           Row{{"icns", "make", "only-one"}, "PICTURE and OUT.icns missing"},
           Row{{"icns", "make"}, "Try 'quorvane icns make --help'"},
           Row{{"render", "a.png", "b.png"}, "not 'b.png'"},
           Row{{"icns"}, "a command is missing"},
           Row{{"apply", "x", "--label"}, "--label needs a value"},
           Row{{"apply", "--label", "a", "-l", "b", "x"}, "--label is given more than once"},
           Row{{"status", "--json=x", "x"}, "--json takes no value"},
           Row{{"render", "--pixels", "10.5", "out.png"}, "whole number"},
           Row{{"render", "out.bmp"}, "'out.bmp' must end in .png"},
           Row{{"render", "--max-size", "9", "out.png"}, "are for a JPEG"},
           Row{{"render", "--quality", "90", "-"}, "are for a JPEG"},
           Row{{"render", "--quality", "0", "out.jpg"}, "--quality takes a whole number from 1 to 100"},
           Row{{"render", "--max-size", "0.5", "out.jpg"}, "--max-size takes a whole number from 1"},
           Row{{"apply", "--jobs", "0", "x"}, "--jobs takes a whole number from 1 to 64"},
           Row{{"apply", "--from", "a.csv", "--files-from", "b"}, "exclude each other"},
           Row{{"apply", "--from", "a.csv", "x"}, "with --from the folders stand in the table"},
           Row{{"reset", "--null", "x"}, "--null says how the list of --files-from is written"},
           Row{{"list", "--null", "--json", "x"}, "--null prints bare names"},
           Row{{"apply", "--verbose", "--quiet", "x"}, "exclude each other"},
       }) {
    const auto outcome = parse(row.words);
    EXPECT_EQ(outcome.exitCode, exitWrongUse) << row.complaint;
    EXPECT_NE(outcome.complaint.find(row.complaint), std::string::npos) << outcome.complaint;
    EXPECT_NE(outcome.complaint.find("Use: quorvane"), std::string::npos) << outcome.complaint;
    EXPECT_TRUE(outcome.output.empty());
  }
}

TEST(Arguments, HelpOnEachLevelBeginsWithUseAndTwoExamples) {
  for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{{"--help"},
                                                                                     {"apply", "-h"},
                                                                                     {"revert", "--help"},
                                                                                     {"reset", "--help"},
                                                                                     {"status", "--help"},
                                                                                     {"render", "-h"},
                                                                                     {"icns", "--help"},
                                                                                     {"icns", "make", "--help"},
                                                                                     {"icns", "list", "-h"},
                                                                                     {"icns", "extract", "--help"}}) {
    const auto outcome = parse(words);
    EXPECT_EQ(outcome.exitCode, exitDone);
    EXPECT_TRUE(outcome.complaint.empty());
    EXPECT_TRUE(outcome.output.starts_with("Use: quorvane ")) << outcome.output;
    const std::size_t first = outcome.output.find("\n  quorvane ");
    EXPECT_NE(outcome.output.find("\n  quorvane ", first + 1), std::string::npos) << outcome.output;
  }
  EXPECT_NE(parse({"--version"}).output.find("quorvane 0."), std::string::npos);
}

TEST(Printable, NothingThatDrivesATerminalGetsThrough) {
  EXPECT_EQ(printable(std::string("a\x1B]0;\n\x7F")), "a\\x1B]0;\\x0A\\x7F");
  EXPECT_EQ(printable(std::string("caf\xC3\xA9 \xE2\x80\xAE gpj")), "caf\xC3\xA9 \\u{202E} gpj");
  EXPECT_EQ(printable(std::string("\xFF\xC0\x80\xED\xA0\x80")), "\\xFF\\xC0\\x80\\xED\\xA0\\x80");
  EXPECT_EQ(printable(std::string("\xC2\x9B"
                                  "31m")),
            "\\u{009B}31m");
}

TEST(Numbers, AreReadTheSameInEveryLocale) {
  EXPECT_EQ(parseNumber("+1.5"), 1.5);
  EXPECT_EQ(parseNumber("-1e2"), -100);
  for (const char* text : {"", "1,5", "inf", "nan", "1e999", "0x10", "5 ", "--1"})
    EXPECT_FALSE(parseNumber(text)) << text;
  EXPECT_EQ(*parseColor("#abc"), QColor(0xAA, 0xBB, 0xCC));
  EXPECT_EQ(*parseColor("DarkRed"), QColor(0x8B, 0, 0));
  EXPECT_FALSE(parseColor("#12345g"));
  EXPECT_EQ(nearestWord("aply", {"apply", "reset"}), "apply");
  EXPECT_EQ(nearestWord("zzzz", {"apply", "reset"}), "");
}

}  // namespace
}  // namespace quorvane::cli
