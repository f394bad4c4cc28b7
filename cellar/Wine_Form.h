// The one screen for the wines of the current cellar: enter, correct, uncork, remove, look at them.
// Which of these it does follows from `Current_Command` at the moment it loads.
//
// The upper half holds a wine's fields, the lower one the list of the cellar. A field's colour
// tells its state; the `Tag` of the eight fields of the gate is "1" once they are filled, and only
// then the button that commits is open.
//
// The sources: Wine_Form.cpp the life and the modes, _Layout the places, _Locks the states of the
// fields, _Fills and _Own_Fills what the lists are filled with, _Fields what a choice or a value
// brings about, _Entered what would be lost, _Show a stored wine on the fields, _Picked the
// cellar's list and what a pick in it brings about, _Commit the writes.
#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <vector>

#include "core/tables/Catalogue.h"
#include "links/Used_Counters.h"
#include "platform/forms/Forms.h"
#include "platform/run_time/Values.h"
#include "screens/Cellar_Wine_Screen.h"
#include "screens/Entry.h"

class Wine_Form : public Cellar_Wine_Screen {
 public:
  Wine_Form();

 protected:
  void Form_Load() override;
  void Form_Activate() override;

 private:
  // ---- the modes ----
  void Load_for_Add();
  void Load_for_Mod();
  void Load_for_View();
  void Load_for_Uncork();
  void Load_for_Del();
  void Load_for_General_List(const char* caption);
  void Load_for_Display(const char* caption);
  void Wait_for_Country();
  void Wait_for_Pick();
  static bool Cellars_Are_Named();
  void Tell_What_Empty_Lists_Wait_for();
  void Update_for_New_Winery();
  void Ask_Again_for_Gone_Winery();
  void Update_for_New_Label(const Text& label_id);
  void Take_Over_Pairings();
  void Show_Requested_Wine();
  void Set_Up_Handlers();
  void Lay_Out();
  /// All that the user can enter but where the wine comes from, as it stands.
  Text Entered();
  void Take_as_Stored() { entry_.Take_as_Stored(); }
  bool May_Lose_Entered() const;
  /// Whether to go by the chosen place of origin, which others bring along: mended, not where it is
  /// the one before, and only after a question where the others were chosen already. Keeps its key.
  bool Is_Followed(Keyed_Combo_Box& place, Text& before);
  void Winery_Add_Command_Click();
  void Label_Add_Command_Click();
  void Pairings_Add_Command_Click();
  void Winery_Combo_DblClick();
  void Exit_Command_Click();

  // ---- the states of the fields ----
  Controls Gate_Fields() override;
  void UnLock_for_Add();
  void Top_Window_Clean();
  /// All in which something can be chosen but the pairings.
  std::vector<Forms::Item_List*> Chosen_Lists();
  void Show_Stand_Ins(bool stand_ins);
  void Hide_Add_Commands();
  void Hide_ADD_Buttons();
  void Disable_Add_Buttons();
  void Reset_Values();

  // ---- what the lists are filled with ----
  void Initialize_Form_Data();
  void Initialize_Display_Data();
  void Initialize_Own_Fields();
  /// The lists that are the same for every wine, as they begin.
  void Drop_Entries_Taken_In();
  void Initialize_Winery();
  void Initialize_Label();
  void Initialize_Classification();
  void Initialize_Variety();
  void Initialize_Region();
  void Initialize_Country();
  void Initialize_Vintage();
  void Initialize_Color();
  void Initialize_Bootle_Size();
  void Initialize_Merit();
  void Load_Wineries_in_Country(const Text& country);
  void Load_Regions_for_Country(const Text& country);
  void Get_Regions_for_Country(const Text& country);
  void Load_Labels_for_Region(Integer region_id);
  void Load_Classifications(const Text& country);
  void Load_Varieties_for_Region(Long region_id);
  void Fill_Peak_Years();

  // ---- what a choice or a value brings about ----
  void Country_Combo_Click();
  void Winery_Combo_Click();
  void Winery_Chosen();
  void New_Winery_Chosen();
  void Region_Combo_Click();
  void Label_Combo_Click();
  void Classification_Combo_Click();
  void Variety_Combo_ItemCheck(int item);
  void Color_Combo_Click();
  void Bottle_Size_Combo_Click();
  void Vintage_Combo_Click();
  void Total_Bottles_Text_LostFocus();
  void Alcohol_Text_LostFocus();
  void Price_Text_LostFocus();
  void Date_Text_LostFocus(Forms::Text_Box& date);
  /// What the fields of dates show is what the wine holds, until the user changes it.
  void Keep_Shown_Dates();
  bool Was_Changed(const Forms::Text_Box& date) const;
  /// Where the user changed its field to a date that is accepted; `none` where he emptied it.
  void Take_Changed_Date(const Forms::Text_Box& date, Date& stored, const Date& none) const;

  // ---- a stored wine on the fields ----
  void Memory_to_Form_for_Mod();
  void Choose_Region();
  void Choose_Varieties();
  void Choose_In_Lists();
  void Choose_Color();

  // ---- the list of the cellar ----
  void Display_Current_Cellar();
  /// 3021 where it has gone and the fault is kept.
  void Read_Winery_of_Wine();
  void Fill_Wine_List() override { Display_Current_Cellar(); }
  void Wine_Cellar_ListView_ItemClick(Forms::List_Item item);
  void Picked_for_Mod();
  void Picked_for_View();
  void Picked_for_Uncork();
  void Picked_for_Del();

  // ---- the writes ----
  void Multi_Functional_Command_Click();
  void Save_Wine();
  void Modify_Wine();
  void Remove_Wine();
  void Store_New_Wine();
  /// What the fields hold as numbers, -1 where a value is not given.
  struct Numbers {
    Long Winery_ID{};
    Integer Vintage{};
    Integer Peak{};
    Currency Value_Guide = Currency::Of(-1);
    Integer Ranking = -1;
    Integer Total_Bottles{};
    Single Alcohol = -1;
  };
  /// 13 and 6 where one cannot be stored.
  Numbers Numbers_of_Form() const;
  void From_Form_to_Memory(const Numbers& numbers);
  void Varieties_to_Memory();
  /// The key of the row that holds the text of the box.
  Long Store_Text(const Forms::Text_Box& box, Long key) const;
  void Store_Varieties();
  void Remove_Varieties();
  void Store_Pairings();
  void Store_Links_And_Count();
  void Count_Names_In();
  void Count_Names_Out();
  static Uses Uses_Counted();
  void Remove_Rows_of_Wine();

  /// The memory records that the counters of a wine go by, while the screen of wineries is looked
  /// at.
  struct Own_Records {
    Labels_Record labels = Labels;
    Classification_Record classification = ::Classification;
    Varieties_Record varieties = Varieties;
    Wineries_Record wineries = Wineries;
    Regions_Record regions = Regions;
  };
  void Have_Own_Records_Back();

  std::optional<Own_Records> own_records_;
  Entry entry_{[this] { return Entered(); },
               {Fault::Entered_Wine_Goes_Without_A_Word, Screen_Words::Leave_Entered_Wine,
                "WINE NOT STORED"}};
  /// The keys of what is being entered; "" while it is to be chosen.
  Text chosen_country_;
  Text chosen_winery_;
  std::map<const Forms::Text_Box*, Text> shown_dates_;

  Forms::Command_Button Winery_Add_Command{*this, "Winery_Add_Command", "Add"};
  Forms::Command_Button Label_Add_Command{*this, "Label_Add_Command", "Add"};
  Forms::Command_Button Variety_Add_Command{*this, "Variety_Add_Command", "Add"};
  Forms::Command_Button Pairings_Add_Command{*this, "Pairings_Add_Command", "Add Pairings"};
  Forms::Command_Button Classification_Add_Command{*this, "Classification_Add_Command", "Add"};
  Forms::Label Wine_Cellar_Name_Label{*this, "Wine_Cellar_Name_Label"};
};
