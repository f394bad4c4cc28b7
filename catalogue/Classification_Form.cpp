#include "catalogue/Classification_Form.h"

#include "catalogue/Deletions.h"
#include "core/Data_Text.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "platform/run_time/Conversions.h"
#include "screens/Catalogue_Lists.h"
#include "screens/Field_States.h"

namespace {

constexpr int key_column = 2;
constexpr int short_column = 3;

// What the glossary says in the language in force: its columns stand one behind the other from the
// third on, in the order of the languages' numbers.
Text Explanation(Long glossary_id) {
  Open_Table(Glossary_Recordset, "Glossary", "ID");
  Glossary_Recordset.Seek("=", glossary_id);
  const bool blank = Glossary_Recordset.NoMatch() && !Is_Kept(Fault::Gone_Row_Ends_The_Run);
  const Text text = blank ? " " : Glossary_Recordset.Fields(System_Language).As_Text();
  Close_Table(Glossary_Recordset);
  return Given_Or_Blank(text);
}

}  // namespace

Classification_Form::Classification_Form()
    : Catalogue_Screen("Classification_Form", "Classification Information", Classification_Table) {
  Classification_ListView.Set_Key_Column(key_column);
  Lay_Out();
  Paging.Go_Through(Classification_ListView, Selected_Classification_Index);
  Paging.Show_Row = [this](const Text& key) { return Show_Row(key); };
  Classification_ListView.ItemClick = [this](Forms::List_Item item) {
    Classification_ListView_ItemClick(item);
  };
  const auto sort = Classification_ListView.ColumnClick;
  Classification_ListView.ColumnClick = [this, sort](const Forms::Column_Header& header) {
    sort(header);
    Paging.Set_Previous_and_Next(Own_Row.Key());
  };
  Exit_Command.Click = [this] { Leave(); };
}

void Classification_Form::Lay_Out() {
  using namespace Forms;
  constexpr int list_width = 66;
  constexpr int list_height = 24;
  constexpr int text_width = 48;
  Classification_ListView.Set_Accessible_Name("Classifications");
  Classification_ListView.Set_Empty_Text("No classifications.");
  Current_Classification_Label.Set_Buddy(Current_Classification_Combo);
  const Place fields =
      Fields({{Name_Label, Name_Text},
              {Description_Label, Place(Description_Text).Wide(text_width).High(8).Grow()},
              {Country_Label, Country_Combo}});
  const Place pages =
      Row({Classification_Form_Previous_Command, Classification_Form_Next_Command, Stretch()});
  Set_Content(Side_By_Side(Place(Classification_ListView).Wide(list_width).High(list_height).Grow(),
                           Column({fields.Grow(), Current_Classification_Label,
                                   Current_Classification_Combo, pages})
                               .Grow()),
              Buttons({General_Command, Exit_Command}));
  Set_Exit(Exit_Command);
}

// ---- loading ----

void Classification_Form::Form_Load() {
  Initialize_Countries(Country_Combo, Classification.Country);
  Load_List();
  General_Command.Set_Enabled(false);
  if (!Command_Is("ClassificationView")) return;
  Lock_All();
  Set_Caption("DISPLAY a Country Classification");
  General_Command.Set_Visible(false);
  Classification_ListView.SetFocus();
}

void Classification_Form::Load_List() {
  Load_Classifications(Classification_ListView, [](Forms::List_Item row) {
    row.Set_SubItems(short_column, Classification.Country);
  });
}

void Classification_Form::Lock_All() {
  for (Forms::Lockable_Control* field : std::initializer_list<Forms::Lockable_Control*>{
           &Name_Text, &Description_Text, &Current_Classification_Combo, &Country_Combo}) {
    Lock(*field);
  }
}

// ---- a row ----

bool Classification_Form::Show_Row(const Text& key) {
  if (!Own_Row.Pick(key)) return false;
  Current_Country_Short = Classification.Country;
  Description_Text.Set_Text("");
  if (Command_Is("ClassificationView")) Memory_to_Form();
  return true;
}

void Classification_Form::Memory_to_Form() {
  Name_Text.Set_Text(Classification.Description);
  if (Classification.Glossary_ID != -1) {
    Description_Text.Set_Text(Explanation(Classification.Glossary_ID));
  }
  if (Is_Kept(Fault::Country_of_Class_Stays)) return;
  Country_Combo.Set_ListIndex(Country_Combo.Place_Of(Classification.Country));
  Initialize_Current_Classification();
}

void Classification_Form::Initialize_Current_Classification() {
  auto& rows = Classification_Recordset;
  Current_Classification_Combo.Clear();
  Open_Table(rows, "Classification", "Country");
  for (rows.Seek("=", Classification.Country); !rows.NoMatch() && !rows.Eof(); rows.MoveNext()) {
    if (rows.Fields("Country").As_Text() != Classification.Country) break;
    Current_Classification_Combo.AddItem(rows.Fields("Description").As_Text());
  }
  Close_Table(rows);
  Current_Classification_Combo.Set_ListIndex(0);
}

void Classification_Form::Classification_ListView_ItemClick(Forms::List_Item item) {
  const Text key = Classification_ListView.Key_of(item);
  if (!Show_Row(key)) return;
  item.Set_Selected(true);
  Paging.Set_Previous_and_Next(key);
  if (Command_Is("ClassificationMod")) Show();
  if (Command_Is("ClassificationDel")) Delete_Classification();
}

void Classification_Form::Delete_Classification() {
  if (Is_In_Use(Deletion_of_Classification, Classification.Used)) return;
  if (Delete_If_Wanted(Deletion_of_Classification)) Load_List();
  Unload();
}
