#include "shell/program.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "base/transaction.h"
#include "food/user_product_file.h"
#include "shell/commands.h"
#include "shell/header.h"
#include "shell/menu_states.h"
#include "shell/screens.h"

namespace velnor {

Program::Program(std::string base_folder, std::string date_text, Form& form, MainWindow& window,
                 MessageBoxes& message_boxes, const Clock& clock)
    : parts_(std::move(base_folder), std::move(date_text), form, window, message_boxes, clock) {
  std::ranges::transform(Screens(), std::back_inserter(screens_),
                         [this](const ScreenRow& row) { return &row.screen(parts_); });
}

Screen* Program::CurrentScreen() const {
  const ScreenRow* const row = FindScreen(parts_.session.screen);
  return row == nullptr ? nullptr : screens_[static_cast<std::size_t>(row - Screens().data())];
}

void Program::Start() {
  OpenDataFolder(parts_.session.base_folder);
  ApplyMenuState(MenuState::kLoggedOut, parts_.window);
  parts_.food.user_products.Load(parts_.session.BaseFile(kUserProductsFile));
}

void Program::OnCommand(int id, int notification) {
  FinishWhatWasBegun(parts_.session.base_folder);
  if (RunCommand(parts_, id)) return;
  // Two screens may have a control of the same id: the current one is meant. Until a chosen screen
  // has been painted, the controls of the one before can still be used.
  Screen* const current = CurrentScreen();
  if (current != nullptr && current->OnControl(id, notification)) return;
  for (Screen* const screen : screens_) {
    if (screen != current && screen->OnControl(id, notification)) return;
  }
}

bool Program::OnMouseWheel(std::int32_t movement) {
  Screen* const current = CurrentScreen();
  return current != nullptr && current->OnWheel(movement < 0);
}

void Program::PreparePaint() {
  FinishWhatWasBegun(parts_.session.base_folder);
  parts_.form.HideAll();
  Screen* const current = CurrentScreen();
  if (current == nullptr) return;
  current->Refresh();
  for (const int key : ShownKeys(*FindScreen(parts_.session.screen))) parts_.form.Show(key);
}

void Program::Paint(Canvas& canvas) const {
  const Screen* const current = CurrentScreen();
  if (current == nullptr) return;
  canvas.CopyBackground(FindScreen(parts_.session.screen)->background);
  PaintHeader(canvas, parts_.session);
  current->Paint(canvas);
}

void Program::FinishPaint() {
  Screen* const current = CurrentScreen();
  const std::optional<Message> refusal = current == nullptr ? std::nullopt : current->TakeRefusal();
  if (!refusal || refusal_open_) return;
  refusal_open_ = true;
  parts_.message_boxes.Show(*refusal);
  refusal_open_ = false;
  ShowScreen(parts_, kHomeScreen);
}

}  // namespace velnor
