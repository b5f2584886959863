#include "bench/deeds.h"

#include "bench/deed_parts.h"

namespace velnor::bench {

std::string OwnProducts(int count) {
  std::string lines;
  for (int i = 0; i < count; ++i) {
    lines += "fruits;fresh;pie " + std::to_string(i) + ";100;237;1.9;11;34.0;\r\n";
  }
  return lines;
}

void WriteAnn(const desktop::WorkFolder& folder, int own_products) {
  CreateDirectoryA((folder.path() + "Ann").c_str(), nullptr);
  folder.Write("users.ASC", "Ann");
  folder.Write("Ann\\info.ASC", "35\r\n170\r\nwomen\r\nlow\r\nnone");
  std::string nutrients;
  std::string weights;
  for (int day = 1; day <= 20; ++day) {
    const std::string date = std::to_string(day) + ".10.2026;";
    nutrients += date + std::to_string(1500 + day * 37 % 900) + ".25;70.125;61.5;254.75;\r\n";
    weights += date + std::to_string(70 + day % 5) + ".5;24.5;\r\n";
  }
  folder.Write("Ann\\wykoda.txt", nutrients);
  folder.Write("Ann\\wykwag.txt", weights);
  folder.Write("data.txt", OwnProducts(own_products));
}

void OpenLogin(Stage& stage) {
  Opening(kOpenLogin)(stage);
  stage.Select(700, 0);
  stage.SendToDialog(700, kChosen);
}

void LogIn(Stage& stage) {
  OpenLogin(stage);
  Confirming()(stage);
  AfterConfirming(stage);
}

std::vector<Deed> AllDeeds(const FoodTable& food) {
  std::vector<Deed> deeds;
  AddFood(deeds, food);
  AddScreens(deeds);
  AddDialogs(deeds, food);
  return deeds;
}

}  // namespace velnor::bench
