#include "base/note.h"

#include <gtest/gtest.h>

namespace velnor {
namespace {

using namespace std::string_literals;

const std::vector<Change> kChanges = {
    {.kind = ChangeKind::kMakeFolder, .path = "Eve"},
    {.kind = ChangeKind::kAppend, .path = "Ann/waga.ASC", .size = 17, .text = "a\r\nb\0c\n"s},
    {.kind = ChangeKind::kReplace,
     .path = "Ann/bilans.ASC",
     .beside = "Ann/bilans.ASC.velnor-7.new",
     .size = 5'000'000'000,
     .checksum = 0xFEDCBA9876543210},
    {.kind = ChangeKind::kRemove, .path = "users.ASC"},
    {.kind = ChangeKind::kRemoveFolder, .path = "Bob"},
};

TEST(NoteTest, IsReadAsItWasWritten) {
  const Note note = ReadNote(NoteBytes(kChanges));
  EXPECT_EQ(note.state, NoteState::kWhole);
  EXPECT_EQ(note.changes, kChanges);
  EXPECT_EQ(ReadNote(NoteBytes({})).state, NoteState::kWhole);
}

TEST(NoteTest, StandsAsPromised) {
  const Change append = {.kind = ChangeKind::kAppend, .path = "a", .size = 3, .text = "b\r\n"};
  EXPECT_EQ(NoteBytes({&append, 1}),
            "velnor.zapis 1 f6f8600f213c0c3d 35\nappend 3 0000000000000000 3\na\n\nb\r\n\n");
}

TEST(NoteTest, IsNotWholeWhenAnyByteOfItIsMissingOrAnother) {
  const std::string bytes = NoteBytes(kChanges);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    EXPECT_EQ(ReadNote(bytes.substr(0, i)).state, NoteState::kNotWhole) << i;
    std::string spoiled = bytes;
    spoiled[i] = static_cast<char>(spoiled[i] ^ 0x80);
    EXPECT_EQ(ReadNote(spoiled).state, NoteState::kNotWhole) << i;
  }
  EXPECT_EQ(ReadNote(bytes + '\0').state, NoteState::kNotWhole);
}

TEST(NoteTest, OfAnotherVersionIsToldFromASpoiledOne) {
  EXPECT_EQ(ReadNote("velnor.zapis 2 whatever").state, NoteState::kOtherVersion);
  EXPECT_EQ(ReadNote("velnor.zapis 10 ").state, NoteState::kOtherVersion);
  EXPECT_EQ(ReadNote("velnor.zapis 2").state, NoteState::kNotWhole);
  EXPECT_EQ(ReadNote("velnor.zapis x ").state, NoteState::kNotWhole);
  EXPECT_EQ(ReadNote("velnor.zapiz 2 ").state, NoteState::kNotWhole);
}

TEST(NoteTest, WithAPathThatLeavesTheFolderIsNotWhole) {
  for (const char* const path : {"", "/a", "../a", "a/..", "a/.. /b", "a//b", "C:a", "a\\..\\b",
                                 "NUL", "a/com1.new", "a/\x1F", "."}) {
    const Change remove = {.kind = ChangeKind::kRemove, .path = path};
    EXPECT_EQ(ReadNote(NoteBytes({&remove, 1})).state, NoteState::kNotWhole) << path;
    const Change replace = {.kind = ChangeKind::kReplace, .path = "a", .beside = path};
    EXPECT_EQ(ReadNote(NoteBytes({&replace, 1})).state, NoteState::kNotWhole) << path;
  }
}

// Published values of this checksum.
TEST(ChecksumTest, IsFnv1a) {
  EXPECT_EQ(Checksum(""), 0xcbf29ce484222325);
  EXPECT_EQ(Checksum("a"), 0xaf63dc4c8601ec8c);
  EXPECT_EQ(Checksum("foobar"), 0x85944171f73967e8);
}

}  // namespace
}  // namespace velnor
