#include "pairing/Cate_Add_Form.h"

#include <algorithm>

#include "core/Common_Words.h"
#include "core/Gereral_Processes.h"
#include "core/Known_Faults.h"
#include "core/Languages.h"
#include "core/tables/Catalogue.h"
#include "platform/run_time/Conversions.h"
#include "screens/Field_States.h"

using Forms::Locked_Color;

namespace {

constexpr Integer spanish = 4;
constexpr Long longest_change = 60;

/// The places of the words that are told or shown under one command alone.
constexpr int double_line_1 = 1;
constexpr int double_line_2 = 2;
constexpr int double_title = 3;
constexpr int prompt_for_change = 6;
constexpr int button_for_change = 7;

}  // namespace

Cate_Add_Form::Cate_Add_Form()
    : Command_Form("Cate_Add_Form", "Add New Categories or Menu Themes") {
  Lay_Out();
  CatText.Change = [this] { CatText_Change(); };
  Maridages_ListView.ItemClick = [this](Forms::List_Item item) {
    Maridages_ListView_ItemClick(item);
  };
  Cat_Add_Now.Click = [this] { Cat_Add_Now_Click(); };
  Cat_Add_Cancel.Click = [this] { Leave(); };
}

// The label about the system's own pairings belongs to a rule that does not hold: every listed
// pairing can be changed. It has no place.
void Cate_Add_Form::Lay_Out() {
  using namespace Forms;
  constexpr int list_height = 20;
  constexpr int list_width = 94;
  constexpr int text_width = 44;
  Current_Maridages_Label.Set_Buddy(Maridages_ListView);
  Set_Content(Column({Current_Maridages_Label,
                      Place(Maridages_ListView).Wide(list_width).High(list_height).Grow(), CatLabel,
                      Fields({{Cat_Language1_Label, Place(CatText).Wide(text_width)},
                              {Cat_Language2_Label, CAT_Other_Language_Text}})}),
              Buttons({Cat_Add_Now, Cat_Add_Cancel}));
  Set_Exit(Cat_Add_Cancel);
  Set_Commit(Cat_Add_Now, Enter_Key::Commits);
}

// ---- loading ----

void Cate_Add_Form::Form_Load() {
  Cate_Add_Form_Language_Initialize();
  Maridages_ListView.Set_Empty_Text(
      Command_Is("MaridageAdd")
          ? Hint_Text(Screen_Words::First_Pairing)
          : Hint_To_Menu(Screen_Words::No_Pairings_Yet, "Pairings_Main", "Pairing_Add"));
  Load_Current_Maridages();
  Define_Other_Language();
  Cat_Add_Now.Set_Enabled(false);
  if (Command_Is("MaridageAdd")) Load_for_Add();
  if (Command_Is("MaridageView")) Load_for_View();
  if (Command_Is("MaridageMod")) Load_for_Mod();
}

void Cate_Add_Form::Cate_Add_Form_Language_Initialize() {
  Words.Read();
  Words.Caption(*this);
}

// As designed the header is the same in every language.
Text Cate_Add_Form::Second_Header() {
  const Integer beside =
      Is_Kept(Fault::Catalogue_Shows_Two_Languages) ? spanish : std::max(System_Language, spanish);
  return Text(Languages.at(Language_Place(beside)));
}

// The list names what is stored in English, and beside it what is stored in the user's language.
void Cate_Add_Form::Load_Current_Maridages() {
  Maridages_ListView.Clear();
  Open_Table(Maridages_Recordset, "Maridages");
  const int beside = Maridages_Column(std::max(System_Language, spanish));
  for (; !Maridages_Recordset.Eof(); Maridages_Recordset.MoveNext()) {
    Read_Maridages_Record();
    if (Maridages.Maridage_Name == "x" || Maridages.Multiuse < 2) continue;
    Maridages_ListView.Add_Row(To_Text(Maridages.Maridage_ID),
                               {Maridages.English, Maridages_Recordset.Fields(beside).As_Text()});
  }
  Close_Table(Maridages_Recordset);
}

// The words name English first.
void Cate_Add_Form::Define_Other_Language() {
  if (System_Language == First_Language) return;
  const Text first = Cat_Language1_Label.Caption();
  Cat_Language1_Label.Set_Caption(Cat_Language2_Label.Caption());
  Cat_Language2_Label.Set_Caption(first);
}

void Cate_Add_Form::Load_for_Add() {
  Maridages_ListView.Set_BackColor(Locked_Color);
  Require(CatText);
  CatText.SetFocus();
}

void Cate_Add_Form::Load_for_View() {
  Maridages_ListView.Set_BackColor(Locked_Color);
  Lock(CatText);
  Lock(CAT_Other_Language_Text);
  Cat_Add_Now.Set_Visible(false);
  CatLabel.Set_Visible(false);
  Set_Caption("List of Current Available Pairings");
  Maridages_ListView.SetFocus();
}

void Cate_Add_Form::Load_for_Mod() {
  CatLabel.Set_Caption(Words.At(prompt_for_change, CatLabel.Caption()));
  Cat_Add_Now.Set_Caption(Words.At(button_for_change, "MODIFY"));
  CatText.Set_Text("");
  CAT_Other_Language_Text.Set_Text("");
  Cat_Add_Now.Set_Enabled(false);
  Open_Table(Maridages_Recordset, "Maridages");
  Maridages_ListView.Set_Arrow_Keys_Pick(false);  // a pick throws away what was typed
  Maridages_ListView.SetFocus();
}

// ---- the fields and the list ----

void Cate_Add_Form::CatText_Change() {
  const bool given = !CatText.Text().empty();
  const bool row_is_known = !Command_Is("MaridageMod") || !picked_.empty() ||
                            Is_Kept(Fault::Modify_Without_Pick_Ends_The_Run);
  Cat_Add_Now.Set_Enabled(given && row_is_known);
  Require_Unless(given, CatText);
}

// As designed English and Spanish alone, whatever the language: a change is stored as what the
// labels say.
void Cate_Add_Form::Show_Boxes() {
  const bool by_language =
      System_Language == spanish || !Is_Kept(Fault::Catalogue_Shows_Two_Languages);
  const Integer first = by_language ? System_Language : First_Language;
  const Integer second = first == First_Language ? spanish : First_Language;
  const auto name = [](Integer language) {
    return Maridages.*Language_Members<Maridages_Record>().at(Language_Place(language));
  };
  CatText.Set_Text(name(first));
  CAT_Other_Language_Text.Set_Text(name(second));
}

void Cate_Add_Form::Maridages_ListView_ItemClick(Forms::List_Item item) {
  const Text key = Maridages_ListView.Key_of(item);
  Read_By_Key(Maridages_Table, key);
  item.Set_Selected(true);
  if (Command_Is("MaridageView")) Show_Boxes();
  if (Command_Is("MaridageMod")) {
    picked_ = key;
    Show_Boxes();
    Cat_Add_Now.Set_Enabled(true);
  }
}

// ---- the writes ----

void Cate_Add_Form::Cat_Add_Now_Click() {
  if (Command_Is("MaridageAdd")) Add_Maridage();
  if (Command_Is("MaridageMod")) Modify_Maridage();
}

// The answer about a double changes nothing: the user goes on with the next name in either case,
// and what was typed stays until then.
void Cate_Add_Form::Add_Maridage() {
  New_Maridage_Text = CatText.Text();
  if (Trim(CAT_Other_Language_Text.Text()).empty()) {
    Forms::Message_Box(
        "Since you did not input the other language information , the main language information"
        "will be used also as the other language input.",
        "PAIRING LANGUAGE ASSUMPTION");
    CAT_Other_Language_Text.Set_Text(CatText.Text());
  }
  New_Maridage_Other_Text = CAT_Other_Language_Text.Text();
  if (Add_New_Maridage()) {
    Forms::Message_Box("New Pairing was added to the currently available list",
                       "NEW PAIRING ADDED SUCCESSFULLY");
    Load_Current_Maridages();
    Maridages_ListView.Scroll_to(To_Text(Maridages.Maridage_ID));
  } else {
    Forms::Ask_Yes_No(Words.At(double_line_1) + "\r" + Words.At(double_line_2),
                      Words.At(double_title));
  }
  CatText.SetFocus();
  CatText.Select_All();
}

// 3021 where nothing was picked, or what was picked has gone.
void Cate_Add_Form::Modify_Maridage() {
  Open_By_Key(Maridages_Table);
  Maridages_Recordset.Seek("=", picked_);
  Maridages_Recordset.Edit();
  Maridages_Recordset.Fields(Maridages_Column()) = Left(CatText.Text(), longest_change);
  Maridages_Recordset.Fields(Maridages_Column(Other_Language())) =
      Left(CAT_Other_Language_Text.Text(), longest_change);
  Maridages_Recordset.Update();
  Close_Table(Maridages_Recordset);
  Forms::Message_Box("Pairing was MODIFIED in the currently available list", "PAIRING MODIFY");
  Load_Current_Maridages();
  Maridages_ListView.Scroll_to(picked_);
}
