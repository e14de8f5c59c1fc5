#include "decode/TypedMessage.h"

#include <gtest/gtest.h>

#include "decode/MeteoDecode.h"
#include "shell/TestSupport.h"

namespace zg {
namespace {

using test::ReadTestFile;
using test::TemporaryFolder;
using test::WriteTestFile;

TEST(TypedMessage, WhatIsDecodedAndWhatIsKept) {
  struct Row {
    const char* name;
    const char* text;
    const char* cut;
    const char* decoded;
  };
  const Row rows[] = {
      {"empty", "", "", ""},
      {"blanks", "   ", " =", " ="},
      {"without an equals sign", " METAR LIRF ", "METAR LIRF =", "METAR LIRF ="},
      {"with one", "METAR LIRF=", "METAR LIRF=", "METAR LIRF="},
      {"one character behind it stays", "METAR LIRF=\nTAF", "METAR LIRF=\n", "METAR LIRF= "},
      {"and no more", "METAR LIRF=AB", "METAR LIRF=A", "METAR LIRF=A"},
      {"the first one counts", "A=B=C", "A=B", "A=B"},
      {"two in a row", "A==B", "A==", "A=="},
      {"not trimmed where there is one", " A =", " A =", " A ="},
      {"several lines", "A\nB\r\nC=", "A\nB\r\nC=", "A B C="},
      {"blanks are folded once", "A  B    C=", "A  B    C=", "A B  C="},
      {"a line end ahead of what is added", "A\n", "A\n =", "A ="},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(CutTypedMessage(row.text), row.cut);
    EXPECT_EQ(NormaliseTypedMessage(row.text), row.decoded);
  }
}

TEST(TypedMessage, ACharacterBehindTheEqualsSignIsKeptWhole) {
  EXPECT_EQ(CutTypedMessage("A=°B"), "A=°");
  EXPECT_EQ(CutTypedMessage("A=€"), "A=€");
}

TEST(TypedMessage, Load) {
  struct Row {
    const char* name;
    const char* file;
    const char* text;
  };
  const Row rows[] = {
      {"in upper case", "metar lirf=", "METAR LIRF=\n"},
      {"a line end behind each line", "a\r\nb\rc\nd=\n", "A\nB\nC\nD=\n"},
      {"empty lines", "a\n\nb=\n", "A\n\nB=\n"},
      {"nothing", "", ""},
      {"a letter above 127", "è=", "È=\n"},
      {"Windows-1252", "\xE8=", "È=\n"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const TemporaryFolder folder;
    WriteTestFile(folder / "LineInputMsg.Dat", row.file);
    const TypedMessage message = LoadTypedMessage(folder.Path());
    EXPECT_EQ(message.Text, row.text);
    EXPECT_EQ(message.Error, "");
  }
}

TEST(TypedMessage, NoFileIsNoError) {
  const TemporaryFolder folder;
  const TypedMessage message = LoadTypedMessage(folder.Path());
  EXPECT_EQ(message.Text, "");
  EXPECT_EQ(message.Error, "");
  EXPECT_EQ(DeleteTypedMessage(folder.Path()), "");
}

TEST(TypedMessage, AFileThatCannotBeRead) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "LineInputMsg.Dat");
  const TypedMessage message = LoadTypedMessage(folder.Path());
  EXPECT_EQ(message.Text, "");
  EXPECT_TRUE(message.Error.starts_with(folder / "LineInputMsg.Dat")) << message.Error;
  EXPECT_TRUE(DeleteTypedMessage(folder.Path()).starts_with(folder / "LineInputMsg.Dat"));
}

TEST(TypedMessage, SavedAndLoaded) {
  struct Row {
    const char* text;
    const char* file;
  };
  const Row rows[] = {{"METAR lirf\n201250Z=  more", "METAR lirf\n201250Z= \n"},
                      {"METAR LIRF", "METAR LIRF =\n"},
                      {"METAR LIRF=\n", "METAR LIRF=\n"},
                      {"", ""}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    const TemporaryFolder folder;
    WriteTestFile(folder / "LineInputMsg.Dat", "OLD=\n");
    EXPECT_EQ(SaveTypedMessage(folder.Path(), row.text), "");
    EXPECT_EQ(ReadTestFile(folder / "LineInputMsg.Dat"), row.file);
    // Decoding what was loaded keeps what was saved, however often.
    const std::string loaded = LoadTypedMessage(folder.Path()).Text;
    EXPECT_EQ(SaveTypedMessage(folder.Path(), loaded), "");
    EXPECT_EQ(LoadTypedMessage(folder.Path()).Text, loaded);
    EXPECT_EQ(DeleteTypedMessage(folder.Path()), "");
    EXPECT_TRUE(folder.Entries().empty());
  }
}

TEST(TypedMessage, AFolderThatCannotBeWritten) {
  const TemporaryFolder folder;
  EXPECT_NE(SaveTypedMessage(folder / "missing/", "METAR LIRF="), "");
}

}  // namespace
}  // namespace zg
