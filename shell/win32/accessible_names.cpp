#include "shell/win32/accessible_names.h"

#include <memory>
#include <oleacc.h>
#include <string>
#include <string_view>
#include <type_traits>

#include "base/control.h"
#include "shell/screens.h"
#include "shell/win32/system_library.h"

namespace velnor {
namespace {

constexpr GUID kServicesClass = {
    0xB5F8350B, 0x0548, 0x48B1, {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};
constexpr GUID kServicesInterface = {
    0x6E26E776, 0x04F0, 0x495D, {0x80, 0xE4, 0x33, 0x30, 0x35, 0x2E, 0x31, 0x69}};
constexpr GUID kNameProperty = {
    0x608D3DF8, 0x8128, 0x4AA7, {0xA4, 0x28, 0xF5, 0x5E, 0x49, 0x26, 0x72, 0x91}};

struct Releaser {
  void operator()(IUnknown* object) const { object->Release(); }
};
using Services = std::unique_ptr<IAccPropServices, Releaser>;

// The library stays: the names are kept by what it has made.
Services OpenServices() {
  const HMODULE library = LoadSystemLibrary("ole32.dll");
  if (library == nullptr) return nullptr;
  const auto initialize = FindFunction<decltype(&CoInitializeEx)>(library, "CoInitializeEx");
  const auto create = FindFunction<decltype(&CoCreateInstance)>(library, "CoCreateInstance");
  if (initialize == nullptr || create == nullptr) return nullptr;
  if (FAILED(initialize(nullptr, COINIT_APARTMENTTHREADED))) return nullptr;
  void* services = nullptr;
  create(kServicesClass, nullptr, CLSCTX_INPROC_SERVER, kServicesInterface, &services);
  return Services(static_cast<IAccPropServices*>(services));
}

}  // namespace

void NameFields(const MainForm& form) {
  const Services services = OpenServices();
  if (!services) return;
  for (const ControlRow& row : MainWindowControls()) {
    const std::string_view label = row.label;
    if (label.empty()) continue;
    const std::wstring name(label.begin(), label.end());  // the labels are plain letters
    services->SetHwndPropStr(form.Find(row.key), static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                             kNameProperty, name.c_str());
  }
}

}  // namespace velnor
