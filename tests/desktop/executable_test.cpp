// What stands in velnor.exe itself: what it asks of the system, and how the system is to load it.

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "tests/desktop/driver.h"

namespace velnor::desktop {
namespace {

class Executable : public testing::Test {
 protected:
  Executable() {
    std::ifstream file(ProgramPath(), std::ios::binary);
    bytes_.assign(std::istreambuf_iterator<char>(file), {});
    EXPECT_GT(bytes_.size(), sizeof(IMAGE_DOS_HEADER));
  }

  template <typename T>
  T At(std::size_t offset) const {
    T value = {};
    if (offset + sizeof value <= bytes_.size()) {
      std::memcpy(&value, bytes_.data() + offset, sizeof value);
    }
    return value;
  }
  std::size_t HeaderOffset() const {
    return static_cast<std::size_t>(At<IMAGE_DOS_HEADER>(0).e_lfanew);
  }
  IMAGE_NT_HEADERS64 Header() const { return At<IMAGE_NT_HEADERS64>(HeaderOffset()); }
  std::vector<IMAGE_SECTION_HEADER> Sections() const {
    std::vector<IMAGE_SECTION_HEADER> sections(Header().FileHeader.NumberOfSections);
    std::size_t offset = HeaderOffset() + sizeof(IMAGE_NT_HEADERS64);
    for (IMAGE_SECTION_HEADER& section : sections) {
      section = At<IMAGE_SECTION_HEADER>(offset);
      offset += sizeof section;
    }
    return sections;
  }
  std::size_t OffsetOf(DWORD address) const {
    for (const IMAGE_SECTION_HEADER& section : Sections()) {
      if (address >= section.VirtualAddress &&
          address < section.VirtualAddress + section.SizeOfRawData) {
        return address - section.VirtualAddress + section.PointerToRawData;
      }
    }
    ADD_FAILURE() << "no section holds " << address;
    return bytes_.size();
  }
  std::string TextAt(std::size_t offset) const { return bytes_.c_str() + offset; }
  // A resource of the file; empty when there is none.
  static std::string Resource(WORD name, WORD type) {
    const HMODULE module = LoadLibraryExA(ProgramPath().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(name), MAKEINTRESOURCEA(type));
    std::string resource;
    if (found != nullptr) {
      const auto* const bytes = static_cast<const char*>(LockResource(LoadResource(module, found)));
      resource.assign(bytes, SizeofResource(module, found));
    }
    FreeLibrary(module);
    return resource;
  }

  std::string bytes_;
};

TEST_F(Executable, IsLoadedAtRandomAddressesAndRunsNoData) {
  const IMAGE_NT_HEADERS64 header = Header();
  ASSERT_EQ(header.Signature, static_cast<DWORD>(IMAGE_NT_SIGNATURE));
  EXPECT_EQ(header.FileHeader.Machine, IMAGE_FILE_MACHINE_AMD64);
  EXPECT_EQ(header.OptionalHeader.Subsystem, IMAGE_SUBSYSTEM_WINDOWS_GUI);
  constexpr WORD kHighEntropy = 0x20;
  const WORD wanted =
      kHighEntropy | IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT;
  EXPECT_EQ(header.OptionalHeader.DllCharacteristics & wanted, wanted);
  EXPECT_EQ(header.FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED, 0);
  const IMAGE_DATA_DIRECTORY& relocations =
      header.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_BASERELOC];
  EXPECT_GT(relocations.Size, 0U) << "without relocations it can be loaded nowhere else";
}

TEST_F(Executable, NoMemoryCanBeBothWrittenAndRun) {
  ASSERT_FALSE(Sections().empty());
  for (const IMAGE_SECTION_HEADER& section : Sections()) {
    constexpr DWORD kBoth = IMAGE_SCN_MEM_WRITE | IMAGE_SCN_MEM_EXECUTE;
    EXPECT_NE(section.Characteristics & kBoth, kBoth)
        << std::string(reinterpret_cast<const char*>(section.Name), 8);
  }
}

TEST_F(Executable, NeedsNothingButTheSystem) {
  std::set<std::string> libraries;
  const IMAGE_DATA_DIRECTORY imports =
      Header().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  std::size_t offset = OffsetOf(imports.VirtualAddress);
  for (;; offset += sizeof(IMAGE_IMPORT_DESCRIPTOR)) {
    const auto entry = At<IMAGE_IMPORT_DESCRIPTOR>(offset);
    if (entry.Name == 0) break;
    std::string name = TextAt(OffsetOf(entry.Name));
    std::ranges::transform(name, name.begin(), [](char c) {
      return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    libraries.insert(name);
  }
  EXPECT_EQ(libraries,
            (std::set<std::string>{"gdi32.dll", "kernel32.dll", "msvcrt.dll", "user32.dll"}));
}

// Every name of a library in the file: that of the dialog that chooses a file is loaded when the
// dialog is opened, from the folder of the system.
TEST_F(Executable, LoadsOneLibraryMoreWhenItIsWanted) {
  std::string text = bytes_;
  std::ranges::transform(text, text.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  const auto is_of_name = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_';
  };
  std::set<std::string> libraries;
  for (std::size_t at = 0; (at = text.find(".dll", at)) != std::string::npos; ++at) {
    std::size_t start = at;
    while (start > 0 && is_of_name(text[start - 1])) --start;
    libraries.insert(text.substr(start, at - start));
  }
  EXPECT_EQ(libraries,
            (std::set<std::string>{"comdlg32", "gdi32", "kernel32", "msvcrt", "user32"}));
}

TEST_F(Executable, RunsAsTheUserAndIsScaledByTheSystem) {
  const std::string manifest = Resource(1, 24);  // RT_MANIFEST
  for (const char* const part :
       {"level=\"asInvoker\"", "<gdiScaling", ">true</gdiScaling>", ">unaware</dpiAwareness>",
        "8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a", "version=\"2.6.4.0\""}) {
    EXPECT_NE(manifest.find(part), std::string::npos) << part;
  }
}

TEST_F(Executable, TellsItsVersion) {
  const std::string resource = Resource(1, 16);  // RT_VERSION
  const std::string signature = "\xBD\x04\xEF\xFE";
  const std::size_t at = resource.find(signature);
  ASSERT_NE(at, std::string::npos);
  VS_FIXEDFILEINFO info = {};
  ASSERT_LE(at + sizeof info, resource.size());
  std::memcpy(&info, resource.data() + at, sizeof info);
  EXPECT_EQ(info.dwFileVersionMS, static_cast<DWORD>(MAKELONG(6, 2)));
  EXPECT_EQ(info.dwFileVersionLS, static_cast<DWORD>(MAKELONG(0, 4)));
}

TEST_F(Executable, IsSmall) { EXPECT_LE(bytes_.size(), 6U * 1024 * 1024); }

}  // namespace
}  // namespace velnor::desktop
