#include "tests/desktop/tour_own_menu.h"

#include "tests/desktop/open_menu.h"

namespace velnor::desktop {
namespace {

// The dialog of an item of the title-bar menu.
Window OpenOwn(const App& app, WPARAM item) {
  SendMessageA(app.main().handle(), WM_SYSCOMMAND, item, 0);
  return app.WaitForPopup();
}

}  // namespace

void Camera::Take(const App& app, const Window& window, const std::string& name) const {
  app.Settle();
  Sleep(200);  // the display draws a moment after the program has finished
  window.SavePicture(folder_ + '\\' + name + ".bmp");
}

// What was eaten before is offered first, with the weight of last time.
void WalkFoodAtHand(const App& app, const Folder& folder, const Camera& camera) {
  app.main().Command(231);
  app.Settle();
  const OpenMenu menu = OpenMenu::AtPoint(app, 300, 70);
  camera.Take(app, app.main(), "right-click");
  menu.Close();

  const Window quick_add = OpenOwn(app, 0x150);
  quick_add.SetText(810, "chee cot");
  camera.Take(app, app.main(), "quick-add");
  quick_add.Command(IDCANCEL);

  folder.Write("products.csv",
               "food;energy [kcal];protein;fat;carbohydrates\n"
               "Crab apples;76;0,4;0,3;20\nQuince;57;0,4;0,1;15,3\nSorbet;none;1;1;30\n");
  const Window import = OpenOwn(app, 0x140);
  import.SetText(801, "products.csv");
  import.Choose(803, "fruits");
  import.Choose(804, "fresh");
  camera.Take(app, import, "import-products");
  import.PostCommand(IDOK);
  const MessageBoxSeen imported = app.WaitForMessageBox(import);
  camera.Take(app, Window(imported.handle), "products-imported");
  Answer(imported, IDOK);
  import.Command(IDCANCEL);
}

void WalkCopies(const App& app, const Camera& camera) {
  const Window back_up = OpenOwn(app, 0x120);
  back_up.SetText(801, "E:\\velnor");
  camera.Take(app, back_up, "back-up");
  back_up.Command(IDCANCEL);

  const Window restore = OpenOwn(app, 0x130);
  camera.Take(app, restore, "restore");
  SendMessageA(restore.Control(811), LB_SETCURSEL, 0, 0);
  restore.Command(811, LBN_SELCHANGE);
  restore.PostCommand(IDOK);
  const MessageBoxSeen sure = app.WaitForMessageBox(restore);
  camera.Take(app, Window(sure.handle), "restore-sure");
  Answer(sure, IDNO);
  restore.Command(IDCANCEL);
}

}  // namespace velnor::desktop
