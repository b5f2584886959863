// The costs of the whole program under its window system, beside those of a bare window: one
// repaint, memory; and the size of velnor.exe.
//
// Usage: desktop_bench.exe [ROUNDS]
// A round starts and measures each program, one after the other: what else the machine does falls
// on all of them. The figures are medians over the rounds. The exit code is 1 when something could
// not be measured.

#include <windows.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "bench/started.h"
#include "bench/table.h"
#include "tests/desktop/driver.h"

namespace velnor::bench {
namespace {

using desktop::WaitUntil;
using desktop::Window;
using desktop::WorkFolder;

constexpr int kRepaints = 15;  // of each screen in a round
constexpr int kRounds = 10;
constexpr double kMegabyte = 1e6;
constexpr double kExeBound = 6;  // MB

// What the display shows along a diagonal of the window.
std::vector<COLORREF> Diagonal(HWND window) {
  constexpr int kPoints = 32;
  RECT place = {};
  GetWindowRect(window, &place);
  const HDC screen = GetDC(nullptr);
  std::vector<COLORREF> colours;
  for (int i = 1; i < kPoints; ++i) {
    colours.push_back(GetPixel(screen, place.left + (place.right - place.left) * i / kPoints,
                               place.top + (place.bottom - place.top) * i / kPoints));
  }
  ReleaseDC(nullptr, screen);
  return colours;
}

constexpr const char* kWithControls = ", controls too";

// The figures of all rounds, by what was measured.
using Samples = std::map<std::string, std::vector<double>>;

void SampleRepaints(const Started& program, const std::string& what, Samples& samples) {
  for (int i = 0; i < kRepaints; ++i) {
    samples[what].push_back(program.Repaint(What::kWindow));
    samples[what + kWithControls].push_back(program.Repaint(What::kWindowAndControls));
  }
}

void LogIn(const Window& window) {
  constexpr int kOpenLogin = 200;
  constexpr int kUsers = 700;
  window.Command(kOpenLogin);
  HWND dialog = nullptr;
  WaitUntil([&] { return (dialog = FindWindowA(kDialogClass, nullptr)) != nullptr; });
  if (!Window(dialog).Choose(kUsers, "Ann")) throw std::runtime_error("nobody can log in");
  Window(dialog).PostCommand(IDOK);
  if (!desktop::WaitUntilGone(dialog)) throw std::runtime_error("the login stays open");
}

void SampleVelnor(const WorkFolder& folder, Samples& samples) {
  constexpr int kOpenCounter = 231;
  constexpr int kOpenCalorieChart = 271;
  const Started velnor("velnor.exe", kVelnorClass, folder.path());
  const Window window(velnor.window());
  LogIn(window);
  Sleep(kCalm);
  SampleRepaints(velnor, "0", samples);
  window.Command(kOpenCounter);
  velnor.Repaint(What::kWindow);
  if (!window.IsShown(126)) throw std::runtime_error("screen 7 does not come");
  Sleep(kCalm);
  SampleRepaints(velnor, "7", samples);
  const std::vector<COLORREF> counter = Diagonal(velnor.window());
  window.Command(kOpenCalorieChart);
  velnor.Repaint(What::kWindow);
  if (window.IsShown(126) || FindWindowA(kDialogClass, nullptr) != nullptr) {
    throw std::runtime_error("screen 14 does not come");
  }
  // The display follows in its own time.
  if (!WaitUntil([&] { return Diagonal(velnor.window()) != counter; })) {
    throw std::runtime_error("nothing is painted");
  }
  SampleRepaints(velnor, "14", samples);
  samples["memory"].push_back(velnor.PeakMegabytes());
}

void SampleBare(const WorkFolder& folder, Samples& samples) {
  constexpr std::array kBareWindows = {
      std::array{"bare_window.exe", "bare", "bare memory"},
      std::array{"bare_window.exe 7", "bare with controls of 7", "bare memory with duties"},
      std::array{"bare_window.exe 14", "bare with controls of 14", "bare memory with duties"},
  };
  for (const auto& [command, repaint, memory] : kBareWindows) {
    const Started bare(command, kBareClass, folder.path());
    Sleep(kCalm);
    SampleRepaints(bare, repaint, samples);
    samples[memory].push_back(bare.PeakMegabytes());
  }
}

// A person with twenty days behind them.
void Write(const WorkFolder& folder) {
  CreateDirectoryA((folder.path() + "Ann").c_str(), nullptr);
  folder.Write("users.ASC", "Ann");
  folder.Write("Ann\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  std::string series;
  for (int day = 1; day <= 20; ++day) {
    series += std::to_string(day) + ".10.2026;" + std::to_string(1500 + day * 37 % 900) +
              ".25;70.125;61.5;254.75;\r\n";
  }
  folder.Write("Ann\\wykoda.txt", series);
}

// --- the size of velnor.exe -------------------------------------------------------------------

std::string ReadWhole(const std::string& path) {
  std::FILE* const file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) throw std::runtime_error("cannot read " + path);
  std::string bytes;
  std::array<char, 65'536> block;
  while (const std::size_t got = std::fread(block.data(), 1, block.size(), file)) {
    bytes.append(block.data(), got);
  }
  std::fclose(file);
  return bytes;
}

// The bytes of every resource of one type.
BOOL CALLBACK AddSize(HMODULE module, LPCSTR type, LPSTR name, LONG_PTR sum) {
  *reinterpret_cast<double*>(sum) += SizeofResource(module, FindResourceA(module, name, type));
  return TRUE;
}

double ResourceMegabytes(HMODULE module, LPCSTR type) {
  double bytes = 0;
  EnumResourceNamesA(module, type, AddSize, reinterpret_cast<LONG_PTR>(&bytes));
  return bytes / kMegabyte;
}

void PrintPart(const std::string& name, double megabytes) {
  std::printf("  %-44s%12.2f MB\n", name.c_str(), megabytes);
}

void PrintExeSize() {
  const std::string path = FolderOfThisProgram() + "velnor.exe";
  const std::string bytes = ReadWhole(path);
  const double size = static_cast<double>(bytes.size()) / kMegabyte;
  std::printf("\nvelnor.exe: %.2f MB, bound %.2f MB%s. Its parts:\n", size, kExeBound,
              size > kExeBound ? "  MISSED" : "");
  const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(bytes.data());
  const auto* const headers =
      reinterpret_cast<const IMAGE_NT_HEADERS*>(bytes.data() + dos->e_lfanew);
  const auto* section = reinterpret_cast<const IMAGE_SECTION_HEADER*>(
      reinterpret_cast<const char*>(&headers->OptionalHeader) +
      headers->FileHeader.SizeOfOptionalHeader);
  for (int i = 0; i < headers->FileHeader.NumberOfSections; ++i, ++section) {
    const auto* const name = reinterpret_cast<const char*>(section->Name);
    PrintPart("section " + std::string(name, strnlen(name, sizeof section->Name)),
              section->SizeOfRawData / kMegabyte);
  }
  const HMODULE module = LoadLibraryExA(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  if (module == nullptr) throw std::runtime_error("cannot look into " + path);
  PrintPart("of .rsrc, pictures", ResourceMegabytes(module, RT_BITMAP));
  PrintPart("of .rsrc, icon", ResourceMegabytes(module, RT_ICON));
  PrintPart("of .rsrc, menu and dialogs",
            ResourceMegabytes(module, RT_MENU) + ResourceMegabytes(module, RT_DIALOG));
  FreeLibrary(module);
}

struct ComparedRow {
  const char* what;
  const char* measured;
  const char* floor;
  double bound;
};

constexpr ComparedRow kBesideBare[] = {
    {"repaint of screen 7", "7", "bare", 1.5},
    {"repaint of screen 14", "14", "bare", 1.5},
    {"screen 7, controls too", "7, controls too", "bare, controls too", 0},
    {"screen 14, controls too", "14, controls too", "bare, controls too", 0},
};

// What the platform alone takes for what a screen has to do.
constexpr ComparedRow kBesideDuties[] = {
    {"repaint of screen 7", "7", "bare with controls of 7", 0},
    {"repaint of screen 14", "14", "bare with controls of 14", 0},
    {"screen 7, controls too", "7, controls too", "bare with controls of 7, controls too", 0},
    {"repaint of screen 0", "0", "bare", 0},
};

constexpr ComparedRow kMemory[] = {
    {"peak", "memory", "bare memory", 1.5},
    {"peak, beside one with the same duties", "memory", "bare memory with duties", 0},
};

std::vector<Comparison> Compare(std::span<const ComparedRow> rows, const Samples& samples,
                                double (*choose)(const std::vector<double>&)) {
  std::vector<Comparison> compared;
  for (const ComparedRow& row : rows) {
    compared.push_back(
        {row.what, choose(samples.at(row.measured)), choose(samples.at(row.floor)), row.bound});
  }
  return compared;
}

void PrintTables(const Samples& samples) {
  PrintComparisons("beside a bare window, medians", "ms", Compare(kBesideBare, samples, Median));
  PrintComparisons("the same, the least of all", "ms", Compare(kBesideBare, samples, Least));
  PrintComparisons("beside one with the same duties, medians", "ms",
                   Compare(kBesideDuties, samples, Median));
  PrintComparisons("the same, the least of all", "ms", Compare(kBesideDuties, samples, Least));
  PrintComparisons("memory", "MB", Compare(kMemory, samples, Median));
}

int Run(int rounds) {
  const WorkFolder folder;
  Write(folder);
  Samples samples;
  for (int round = 0; round < rounds; ++round) {
    SampleVelnor(folder, samples);
    SampleBare(folder, samples);
  }
  PrintTables(samples);
  PrintExeSize();
  return 0;
}

}  // namespace
}  // namespace velnor::bench

int main(int argc, char** argv) {
  try {
    return velnor::bench::Run(argc > 1 ? std::atoi(argv[1]) : velnor::bench::kRounds);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "desktop_bench: %s\n", error.what());
    return 1;
  }
}
