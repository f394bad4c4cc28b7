#include "screens/Tasting_Boxes.h"

#include <array>
#include <set>

#include "core/Globals.h"
#include "core/Known_Faults.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "core/tables/Rows.h"
#include "platform/run_time/Conversions.h"

namespace {

constexpr int taste_boxes = 6;
constexpr int aroma_boxes = 8;
constexpr const char* taste = "Taste";
constexpr const char* aroma = "Aroma";

constexpr std::array taste_captions{"Sweet",        "Medium Dry",      "Dry",
                                    "Low Tannings", "Medium Tannings", "Strong Tannings"};
constexpr std::array aroma_captions{"Earthy", "Vegetive", "Woody",  "Caramelized",
                                    "Nutty",  "Spicy",    "Floral", "Fruity"};

// By colour: the taste boxes of one set exclude each other; those of set 0 exclude none.
constexpr std::array<std::array<int, taste_boxes>, 5> exclusion_sets{{
    {1, 1, 1, 2, 2, 2},  // red
    {1, 1, 1, 0, 0, 0},  // white
    {1, 1, 1, 0, 0, 0},  // rosé
    {1, 1, 1, 1, 1, 1},  // sparkling
    {0, 0, 0, 0, 0, 0},  // fortified
}};
constexpr int white = 1;

template <std::size_t Count>
void Caption(Forms::Control_Array<Forms::Check_Box>& boxes,
             const std::array<const char*, Count>& captions) {
  int box = 0;
  for (const char* caption : captions) boxes[box++].Set_Caption(caption);
}

Forms::Places Places_of(Forms::Control_Array<Forms::Check_Box>& boxes) {
  Forms::Places places;
  boxes.Each([&places](Forms::Check_Box& box) { places.emplace_back(box); });
  return places;
}

// Sets the guard as long as it lives.
class Guarding {
 public:
  explicit Guarding(bool& guard) : guard_(guard) { guard_ = true; }
  ~Guarding() { guard_ = false; }
  Guarding(const Guarding&) = delete;
  Guarding& operator=(const Guarding&) = delete;

 private:
  bool& guard_;
};

}  // namespace

Tasting_Boxes::Tasting_Boxes(Forms::Form& form, Wine_List marks_of, std::function<int()> color)
    : marks_of_(marks_of),
      color_(std::move(color)),
      Wine_Taste_Frame(form, "Wine_Taste_Frame", taste),
      Taste_Check(form, "Taste_Check", 0, taste_boxes - 1),
      Aroma_Frame(form, "Aroma_Frame", aroma),
      Aroma_Check(form, "Aroma_Check", 0, aroma_boxes - 1) {
  Caption(Taste_Check, taste_captions);
  Caption(Aroma_Check, aroma_captions);
  for (int box = 0; box < taste_boxes; ++box) {
    Taste_Check[box].Click = [this, box] { Taste_Check_Click(box); };
  }
  Aroma_Check.Each([this](Forms::Check_Box& box) {
    box.Click = [this, &box] {
      if (aroma_guard_) return;
      const Guarding guarding(aroma_guard_);
      if (Checks_Locked) Undo(box);
    };
  });
}

Forms::Place Tasting_Boxes::Taste_Place() {
  return Forms::Group(Wine_Taste_Frame, Forms::Column(Places_of(Taste_Check)));
}

Forms::Place Tasting_Boxes::Aroma_Place() {
  return Forms::Group(Aroma_Frame, Forms::Column(Places_of(Aroma_Check)));
}

void Tasting_Boxes::Open(Forms::Color open_color) {
  Each([open_color](Forms::Check_Box& box) {
    box.Set_Enabled(true);
    box.Set_BackColor(open_color);
  });
}

void Tasting_Boxes::Show_Locked() {
  Each([](Forms::Check_Box& box) { box.Set_BackColor(Forms::Locked_Color); });
}

void Tasting_Boxes::Set_Aroma_Visible(bool visible) {
  Aroma_Frame.Set_Visible(visible);
  Aroma_Check.Each([visible](Forms::Check_Box& box) { box.Set_Visible(visible); });
}

void Tasting_Boxes::Clear() {
  const Guarding taste_guarding(taste_guard_);
  const Guarding aroma_guarding(aroma_guard_);
  Each([](Forms::Check_Box& box) { box.Set_Value(0); });
  Taste_Flags.Clear();
  Aroma_Flags.Clear();
}

Text Tasting_Boxes::Ticks() {
  Text ticks;
  Each([&ticks](const Forms::Check_Box& box) { ticks += To_Text(box.Value()); });
  return ticks;
}

void Tasting_Boxes::Offer(std::string_view english_color) {
  Clear();
  std::set<const Forms::Check_Box*> offered;
  Open_Table(Wine_Taste_Type_Recordset, "Wine_Taste_Type", "Color");
  Wine_Taste_Type_Recordset.Seek("=", english_color);
  int taste_box = 0;
  int aroma_box = 0;
  const bool none = Wine_Taste_Type_Recordset.NoMatch() && !Is_Kept(Fault::Gone_Row_Ends_The_Run);
  for (; !none && !Wine_Taste_Type_Recordset.Eof(); Wine_Taste_Type_Recordset.MoveNext()) {
    Wine_Taste_Type_Description.Read(Wine_Taste_Type_Recordset, Wine_Taste_Type);
    if (Wine_Taste_Type.Color != english_color) break;
    if (Wine_Taste_Type.Type == taste) offered.insert(&Taste_Check[taste_box++]);
    if (Wine_Taste_Type.Type == aroma) offered.insert(&Aroma_Check[aroma_box++]);
  }
  Close_Table(Wine_Taste_Type_Recordset);
  Each([&offered](Forms::Check_Box& box) { box.Set_Visible(offered.contains(&box)); });
}

void Tasting_Boxes::Show_Marks_of(Long wine_id) {
  Clear();
  const Guarding taste_guarding(taste_guard_);
  const Guarding aroma_guarding(aroma_guard_);
  Open_Table(Wine_Tasting_Recordset, "Wine_Tasting", "Wine_ID");
  Each_Row_Of(Wine_Tasting_Recordset, "Wine_ID", wine_id, [this] {
    Read_Wine_Tasting_Record();
    const bool any = marks_of_ == Wine_List::Cellar && Is_Kept(Fault::Marks_Of_General_Wines_Show);
    if (!any && !Is_Own_Row()) return;
    Boxes* boxes = Wine_Tasting.Type_Taste == taste   ? &Taste_Check
                   : Wine_Tasting.Type_Taste == aroma ? &Aroma_Check
                                                      : nullptr;
    const Integer box = Wine_Tasting.Description;
    if (boxes == nullptr || box < 0 || box > boxes->Last()) return;
    (*boxes)[box].Set_Value(1);
    if (!Is_Kept(Fault::Color_Goes_By_Word)) (*boxes)[box].Set_Visible(true);
  });
  Close_Table(Wine_Tasting_Recordset);
}

void Tasting_Boxes::Store_Marks_of(Long wine_id) {
  const bool by_clicks = Is_Kept(Fault::Tastes_Go_By_Clicks);
  Open_Table(Wine_Tasting_Recordset, "Wine_Tasting");
  for (int box = 0; box < taste_boxes; ++box) {
    const bool marked = by_clicks ? Taste_Flags[box + 1] : Taste_Check[box].Value() == 1;
    if (marked) Add_Row(wine_id, taste, box);
  }
  for (int box = 0; box < aroma_boxes; ++box) {
    if (Aroma_Check[box].Value() == 1) Add_Row(wine_id, aroma, box);
  }
  Close_Table(Wine_Tasting_Recordset);
}

// As designed this begins with the lowest key of the table, whichever wine that is: only the marks
// of that wine are ever removed, and those of a general wine of its number with them.
void Tasting_Boxes::Remove_Marks_of(Long wine_id) const {
  const bool kept = Is_Kept(Fault::Old_Marks_Stay);
  Open_Table(Wine_Tasting_Recordset, "Wine_Tasting", "Wine_ID");
  if (!kept || Wine_Tasting_Recordset.Fields("Wine_ID").As_Long() == wine_id) {
    Each_Row_Of(Wine_Tasting_Recordset, "Wine_ID", wine_id, [this, kept] {
      if (kept || Is_Own_Row()) Wine_Tasting_Recordset.Delete();
    });
  }
  Close_Table(Wine_Tasting_Recordset);
}

bool Tasting_Boxes::Is_Own_Row() const {
  const bool of_cellar = Wine_Tasting_Recordset.Fields("Cellar_Wine").As_Boolean();
  return of_cellar == (marks_of_ == Wine_List::Cellar);
}

void Tasting_Boxes::Add_Row(Long wine_id, const char* kind, int box) const {
  Wine_Tasting_Recordset.AddNew();
  Init_Wine_Tasting_Record();
  Wine_Tasting.Description = static_cast<Integer>(box);
  Wine_Tasting.Type_Taste = kind;
  Wine_Tasting.Wine_ID = wine_id;
  Wine_Tasting.Cellar_Wine = marks_of_ == Wine_List::Cellar;
  Write_Wine_Tasting_Record();
}

void Tasting_Boxes::Taste_Check_Click(int index) {
  if (Ignore_Events || taste_guard_) return;
  if (Checks_Locked) {
    const Guarding guarding(taste_guard_);
    Undo(Taste_Check[index]);
    return;
  }
  Taste_Flags[index + 1] = true;
  const Ignoring_Events ignoring;
  Exclude_Others(index);
}

void Tasting_Boxes::Undo(Forms::Check_Box& box) { box.Set_Value(box.Value() == 0 ? 1 : 0); }

// "Sweet" of a white wine is known to clear the wrong flags: those of place 0 and of itself. Its
// own mark is lost, and one flagged before for "Medium Dry" or "Dry" is stored though its box is
// clear.
void Tasting_Boxes::Exclude_Others(int index) {
  const int color = color_();
  if (color < 0 || color >= static_cast<int>(exclusion_sets.size())) return;
  const auto& sets = exclusion_sets[static_cast<std::size_t>(color)];
  const int own_set = sets[static_cast<std::size_t>(index)];
  if (own_set == 0) return;
  const int first_flag = color == white && index == 0 ? -1 : 1;
  for (int box = 0; box < taste_boxes; ++box) {
    if (box == index || sets[static_cast<std::size_t>(box)] != own_set) continue;
    Taste_Check[box].Set_Value(0);
    Taste_Flags[box + first_flag] = false;
  }
}
