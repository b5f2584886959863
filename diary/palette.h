// The colours of the diary's page, each once: a name, its value on a light and on a dark page, what
// it stands on and how far it must stand apart from that. Hues after M. Okabe and K. Ito, "Color
// Universal Design" (2008), darkened or lightened until they reach the contrasts.

#ifndef VELNOR_DIARY_PALETTE_H_
#define VELNOR_DIARY_PALETTE_H_

#include <array>
#include <string_view>

namespace velnor {

enum class ColourUse {
  kSurface,     // stands under the others
  kText,        // 4.5 to 1 on every surface
  kMark,        // 3 to 1 on every surface: lines, bars, points
  kDecoration,  // says nothing by itself
};

struct PageColour {
  std::string_view name;   // of the property of the style sheet, without its two dashes
  std::string_view light;  // "#rrggbb"
  std::string_view dark;
  ColourUse use;
};

inline constexpr std::array<PageColour, 13> kPageColours = {{
    {"page", "#f6f6f3", "#131619", ColourUse::kSurface},
    {"card", "#ffffff", "#1c2024", ColourUse::kSurface},
    {"ink", "#1b1f23", "#e8eaed", ColourUse::kText},
    {"soft", "#596068", "#a9b1ba", ColourUse::kText},
    {"link", "#00598c", "#7cc4f0", ColourUse::kText},
    {"rule", "#e0e1dc", "#31373d", ColourUse::kDecoration},
    {"blue", "#0072b2", "#56b4e9", ColourUse::kMark},
    {"vermilion", "#d04f00", "#f0843c", ColourUse::kMark},
    {"purple", "#b0538a", "#d98bb8", ColourUse::kMark},
    {"green", "#00904f", "#5fd98a", ColourUse::kMark},
    {"band", "#dff1ea", "#1d4237", ColourUse::kDecoration},
    {"axis", "#7b828a", "#7d868f", ColourUse::kMark},
    {"track", "#ecede9", "#2a3036", ColourUse::kDecoration},
}};

}  // namespace velnor

#endif  // VELNOR_DIARY_PALETTE_H_
