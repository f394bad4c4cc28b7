// The screen of a label, or appellation, of a wine region: adds one, also on the way to a new wine,
// and renames the one that was picked on the screen of the regions.
#pragma once

#include "core/tables/Geography_Tables.h"
#include "platform/forms/Forms.h"
#include "platform/run_time/Values.h"
#include "screens/Catalogue_Screen.h"
#include "screens/Keyed.h"

/// The button that commits goes by the colours of the three boxes, not by their tags: it is open
/// once there is a name and none of country and region shows that it is required.
class Label_Form : public Catalogue_Screen {
 public:
  Label_Form();

 protected:
  void Form_Load() override;
  bool Commits() const override;
  Text Entered() override;

 private:
  // ---- the modes ----
  void Lay_Out();
  bool Adds() const { return Command_Is({"LabelAdd", "WineAdd"}); }
  bool Modifies() const { return Command_Is({"LabelMod", "RegionsMod"}); }
  void Load_Data_for_Add();
  void Load_Data_for_Mod();
  void Load_Data_for_View();
  void Memory_to_Form();

  // ---- the fields ----
  bool Has_Name() const;
  void Show_Regions(const Text& country);
  void Country_Combo_Click();
  void Region_Combo_Click();
  void Name_Text_Change();

  // ---- the writes ----
  void General_Command_Click();
  /// Whether the region has a label of the name already; tells so.
  bool Is_Double();
  void Form_to_Memory() const;
  /// Whether it was stored.
  bool Store_New_Label();
  void Add_Label();
  void Modify_Label();
  void Add_Label_for_Wine();
  void Exit_Command_Click();
  void Exit_to_Wine();

  /// The place of the label itself among those of its region; none of one that is added.
  int own_place_ = -1;

  Forms::Label Country_Label{*this, "Country_Label", "Country"};
  Keyed_Combo_Box Country_Combo{*this, "Country_Combo", "Country_Short_Combo"};
  Forms::Label Region_Label{*this, "Region_Label", "Wine Region"};
  Keyed_Combo_Box Region_Combo{*this, "Region_Combo", "Region_ID_Combo"};
  Forms::Label Name_Label{*this, "Name_Label", "Label/Appellation   Name"};
  Forms::Text_Box Name_Text{*this, "Name_Text"};
  Forms::Label System_Label{*this, "System_Label", "System Label"};
  Forms::Label Current_Labels_Label{*this, "Current_Labels_Label",
                                    "Current Labels/Appelations  for the Wine  Region"};
  Forms::Combo_Box Current_Labels_Combo{*this, "Current_Labels_Combo"};
  Forms::Picture Photo_Image{*this, "Photo_Image"};

  // What has no place on the screen: nothing is shown of photos yet, and no command pages.
  Forms::Label Photo_Label{*this, "Photo_Label", "Photo"};
  Forms::Command_Button Photo_Command{*this, "Photo_Command", "ADD"};
  Forms::Command_Button Labels_Form_Next_Command{*this, "Labels_Form_Next_Command", "Next==>"};
  Forms::Command_Button Labels_Form_Previous_Command{*this, "Labels_Form_Previous_Command",
                                                     "<==Previous"};
};
