#include "food/product_import.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <span>
#include <unordered_set>
#include <utility>

#include "base/code_page.h"
#include "base/number_text.h"
#include "food/nutrition.h"
#include "food/product_table_reader.h"
#include "food/user_product_file.h"

namespace velnor {
namespace {

enum Column { kName, kKcal, kProtein, kFat, kCarbohydrate, kMass, kMain, kSub, kColumnCount };
constexpr std::size_t kNeededColumns = kMass;  // those before it

struct ColumnNames {
  std::string_view shown;
  std::array<std::string_view, 5> names;  // the first that a table has is taken; "" is none
};

// In the order of Column. Those with an underscore are the names of nutrient databases.
constexpr ColumnNames kColumns[] = {
    {"name", {"name", "food", "product", "product name", "food name"}},
    {"kcal", {"kcal", "energy_kcal", "calories", "energy"}},
    {"protein", {"protein", "proteins", "protein_g"}},
    {"fat", {"fat", "fats", "fat_g"}},
    {"carbohydrate", {"carbohydrate", "carbohydrates", "carbohydrate_g", "carbohydrates_g"}},
    {"mass", {"mass", "mass_g"}},
    {"main", {"main", "main category"}},
    {"sub", {"sub", "subcategory"}},
};
static_assert(std::size(kColumns) == kColumnCount);

// Of each column the field that holds it.
using ColumnPlaces = std::array<std::optional<std::size_t>, kColumnCount>;

struct Figure {
  Column column;
  std::string ImportedProduct::*text;
  std::string_view missing;
  std::string_view wrong;
};

constexpr Figure kFigures[] = {
    {kKcal, &ImportedProduct::kcal, "no calories", "the calories are no figure"},
    {kProtein, &ImportedProduct::protein, "no protein", "the protein is no figure"},
    {kFat, &ImportedProduct::fat, "no fat", "the fat is no figure"},
    {kCarbohydrate, &ImportedProduct::carbohydrate, "no carbohydrates",
     "the carbohydrates are no figure"},
};

constexpr std::string_view kTooLong = "longer than 10,000 characters";
constexpr std::string_view kNoName = "no name of four letters";
constexpr std::string_view kWrongMass = "the mass is no figure";
constexpr std::string_view kUnknownCategory = "unknown category";

constexpr std::size_t kFigureLimit = 8;
constexpr double kLargestFigure = 99'999;
constexpr double kLeastFigure = 0.0001;  // a smaller one would be written with an exponent
constexpr std::size_t kReportedRows = 10;

// "Energy [kcal]" becomes "energy". A column in kJ has no name: its figures are not the program's.
std::string ColumnName(std::string_view heading) {
  const std::string small = ToLowerCase(std::string(heading));
  if (small.find("kj") != std::string::npos) return {};
  std::string name;
  int depth = 0;
  for (const char c : small) {
    if (c == '(' || c == '[') ++depth;
    if (depth == 0) name += c;
    if ((c == ')' || c == ']') && depth > 0) --depth;
  }
  return TidyText(name);
}

ColumnPlaces FindColumns(const TableRow& headings) {
  std::vector<std::string> names;
  names.reserve(headings.fields.size());
  for (const std::string& heading : headings.fields) names.push_back(ColumnName(heading));
  ColumnPlaces places;
  for (std::size_t column = 0; column < kColumnCount; ++column) {
    for (const std::string_view known : kColumns[column].names) {
      const auto found = std::ranges::find(names, known);
      if (known.empty() || found == names.end()) continue;
      places[column] = static_cast<std::size_t>(found - names.begin());
      break;
    }
  }
  return places;
}

// The table from behind the line that names its columns.
struct OpenTable {
  TableReader reader;
  ColumnPlaces places;
  bool has_headings;  // whether there is such a line
};

OpenTable OpenWith(std::string_view text, char separator) {
  OpenTable table{TableReader(text, separator), {}, false};
  while (std::optional<TableRow> row = table.reader.Next()) {
    if (row->IsEmpty() && !row->is_too_long) continue;
    table.has_headings = !row->is_too_long;
    table.places = FindColumns(*row);
    break;
  }
  return table;
}

std::ptrdiff_t KnownColumns(const OpenTable& table) {
  return std::ranges::count_if(table.places, [](const auto& place) { return place.has_value(); });
}

OpenTable Open(std::string_view text) {
  std::vector<OpenTable> tables;
  for (const char separator : kTableSeparators) tables.push_back(OpenWith(text, separator));
  return *std::ranges::max_element(tables, {}, KnownColumns);
}

std::string ProblemOf(const OpenTable& table) {
  if (!table.has_headings) {
    return "This file is no table of products: its first line is empty or too long.\n"
           "Nothing was added.";
  }
  std::string missing;
  for (std::size_t column = 0; column < kNeededColumns; ++column) {
    if (table.places[column]) continue;
    if (!missing.empty()) missing += ", ";
    missing += kColumns[column].shown;
  }
  if (missing.empty()) return {};
  return "The first line of the table must name its columns. It names none for: " + missing +
         ".\nNothing was added.";
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Digits with at most one point or comma, as the program reads figures; nothing when the text is
// something else, or more than a figure can be.
std::optional<std::string> FigureText(std::string_view text) {
  std::string figure(text);
  std::ranges::replace(figure, ',', '.');
  const auto points = std::ranges::count(figure, '.');
  const auto digits = std::ranges::count_if(figure, IsDigit);
  if (digits == 0 || points > 1 || digits + points != static_cast<std::ptrdiff_t>(figure.size())) {
    return std::nullopt;
  }
  const double value = ParseNumber(figure.front() == '.' ? '0' + figure : figure);
  if (value > kLargestFigure) return std::nullopt;
  const bool as_it_stands =
      figure.size() <= kFigureLimit && IsDigit(figure.front()) && IsDigit(figure.back());
  if (as_it_stands) return figure;
  std::string rounded = value < kLeastFigure ? "0" : FormatNumber(value, kShownDigits);
  if (rounded.ends_with('.')) rounded.pop_back();
  return rounded;
}

bool IsKnown(const FoodTable& food, const ProductCategory& category) {
  if (category.subcategory.empty()) return false;  // what no list of the counter offers
  return std::ranges::any_of(food.categories, [&](const CategoryRecord& row) {
    return row.main_category == category.main_category &&
           std::ranges::find(row.subcategories, category.subcategory) != row.subcategories.end();
  });
}

// A product's name and figures, the same for two that are the same however they are written.
std::string Identity(const ProductRecord& product) {
  constexpr int kDigits = 8;
  std::string identity(product.name);
  for (const std::string_view figure :
       {product.mass, product.kcal, product.protein, product.fat, product.carbohydrate}) {
    identity += ';';
    identity += FormatNumber(ParseNumber(figure), kDigits);
  }
  return identity;
}

class Planner {
 public:
  Planner(const FoodTable& food, const ProductCategory& filed_under, const ColumnPlaces& places)
      : food_(food), filed_under_(filed_under), places_(places) {
    for (const auto products : {food.products, food.user_products.products()}) {
      for (const ProductRecord& product : products) known_.insert(Identity(product));
    }
  }

  void Take(const TableRow& row, ImportPlan& plan) {
    if (row.IsEmpty() && !row.is_too_long) return;
    ImportedProduct product;
    const std::string_view reason = row.is_too_long ? kTooLong : Fill(row, product);
    if (!reason.empty()) {
      plan.left_out.push_back({row.first_line, row.last_line, reason});
    } else if (known_.insert(Identity(product.AsRecord())).second) {
      plan.products.push_back(std::move(product));
    } else {
      ++plan.already_there;
    }
  }

 private:
  std::string Field(const TableRow& row, Column column) const {
    const std::optional<std::size_t> place = places_[column];
    return place && *place < row.fields.size() ? TidyText(row.fields[*place]) : "";
  }

  // Why the row is no product; empty when it is.
  std::string_view Fill(const TableRow& row, ImportedProduct& product) const {
    product.name = ToLowerCase(Field(row, kName));
    std::ranges::replace(product.name, ';', ',');
    product.name = TidyText(product.name.substr(0, kRemovableNameLimit));
    if (product.name.size() < kShortestProductName) return kNoName;
    for (const Figure& figure : kFigures) {
      const std::string text = Field(row, figure.column);
      if (text.empty()) return figure.missing;
      const std::optional<std::string> number = FigureText(text);
      if (!number) return figure.wrong;
      product.*figure.text = *number;
    }
    const std::string mass = Field(row, kMass);
    const std::optional<std::string> grams = FigureText(mass.empty() ? kUsualProductMass : mass);
    if (!grams || !(ParseNumber(*grams) > 0)) return kWrongMass;
    product.mass = *grams;
    product.category = {ToLowerCase(Field(row, kMain)), ToLowerCase(Field(row, kSub))};
    const bool names_none =
        product.category.main_category.empty() && product.category.subcategory.empty();
    if (names_none) product.category = filed_under_;
    return IsKnown(food_, product.category) ? "" : kUnknownCategory;
  }

  const FoodTable& food_;
  const ProductCategory& filed_under_;
  const ColumnPlaces& places_;
  std::unordered_set<std::string> known_;
};

std::string WithThousands(std::size_t count) {
  std::string digits = std::to_string(count);
  for (std::size_t i = digits.size(); i > 3; i -= 3) digits.insert(i - 3, 1, ',');
  return digits;
}

std::string Products(std::size_t count) {
  return WithThousands(count) + (count == 1 ? " product" : " products");
}

std::string LinesOf(const LeftOutRow& row) {
  const std::string first = WithThousands(row.first_line);
  return row.first_line == row.last_line ? "line " + first
                                         : "lines " + first + " to " + WithThousands(row.last_line);
}

}  // namespace

ProductRecord ImportedProduct::AsRecord() const {
  return {
      category.main_category, category.subcategory, name, mass, kcal, protein, fat, carbohydrate};
}

ImportPlan PlanImport(std::string_view bytes, const FoodTable& food,
                      const ProductCategory& filed_under) {
  if (bytes.size() > kImportLimit) {
    return {.problem =
                "This file is larger than 8 MB. A table of products is smaller.\n"
                "Nothing was added."};
  }
  const std::optional<std::string> text = TableText(bytes);
  if (!text) {
    return {.problem =
                "This file is no table of text. Save the table as CSV, in UTF-8 or in code "
                "page 1250.\nNothing was added."};
  }
  OpenTable table = Open(*text);
  ImportPlan plan{.problem = ProblemOf(table)};
  if (!plan.problem.empty()) return plan;
  Planner planner(food, filed_under, table.places);
  while (const std::optional<TableRow> row = table.reader.Next()) planner.Take(*row, plan);
  plan.fitting = std::min(plan.products.size(), food.user_products.free_slots());
  return plan;
}

std::string ImportReport(const ImportPlan& plan, std::size_t added) {
  std::string report = Products(added) + (added == 1 ? " was added" : " were added");
  if (plan.already_there > 0) {
    report += ", " + WithThousands(plan.already_there) +
              (plan.already_there == 1 ? " was there already" : " were there already");
  }
  if (plan.left_out.empty()) return report + '.';
  report += ", " + WithThousands(plan.left_out.size()) + " left out: ";
  const std::size_t shown = std::min(plan.left_out.size(), kReportedRows);
  for (std::size_t i = 0; i < shown; ++i) {
    if (i > 0) report += "; ";
    report.append(LinesOf(plan.left_out[i])).append(": ").append(plan.left_out[i].reason);
  }
  const std::size_t more = plan.left_out.size() - shown;
  return more == 0 ? report + '.' : report + "; and " + WithThousands(more) + " more.";
}

std::string TooManyProducts(const ImportPlan& plan) {
  const std::string text = "The table holds " + Products(plan.products.size()) +
                           " to add, but Your own list has room for " +
                           WithThousands(plan.fitting) + " more.\n";
  return plan.fitting == 0 ? text + "Nothing was added. Remove some products first."
                           : text + "Add the first " + WithThousands(plan.fitting) + " of them?";
}

}  // namespace velnor
