// What every screen of wines has, of the cellar's and of the general list: the fields of one wine,
// their states and events, and a list of wines.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Globals.h"
#include "platform/forms/Forms.h"
#include "platform/run_time/Values.h"
#include "screens/Command_Form.h"
#include "screens/Keyed.h"
#include "screens/Row_List.h"
#include "screens/Tasting_Boxes.h"

class Wine_Screen : public Command_Form {
 protected:
  /// `marks_of` tells whose marks of taste and aroma the boxes show and store; `columns` and
  /// `words` are those of the list of wines (Row_List.h).
  Wine_Screen(std::string_view name, std::string_view caption, Wine_List marks_of,
              std::vector<Forms::List_Column> columns, std::vector<std::string> words);

  // ---- the states of the fields ----

  using Controls = std::vector<Forms::Placed_Control*>;
  /// Locked and opened together. A screen with fields of its own adds these.
  virtual std::vector<Forms::Lockable_Control*> Entry_Fields();
  virtual std::vector<Forms::Text_Box*> Text_Fields();
  void Lock_Top_Window();
  void UnLock_Top_Window(Forms::Color open_checks = Forms::Open_Check_Color);

  /// What must be filled before the button that commits opens; none on a screen that does not
  /// commit what was entered.
  virtual Controls Gate_Fields() { return {}; }
  void Should_Multi_Command_Be_Enabled();

  // ---- the message, in the place of the aromas ----

  void Setup_for_Message(const char* message);
  void Remove_Message();

  // ---- the events of the fields ----

  /// A field's event does nothing while code sets values, and nothing that its handler sets raises
  /// another. Every one of them ends with the gate.
  template <class Screen>
  void On(std::function<void()>& event, void (Screen::*handler)()) {
    event = [this, handler] { Handle([&] { (static_cast<Screen*>(this)->*handler)(); }); };
  }
  /// A locked text box that was only looked at tests nothing and leaves the button as it is.
  template <class Screen>
  void On_Leaving(Forms::Text_Box& field, void (Screen::*handler)()) {
    field.LostFocus = [this, &field, handler] {
      if (!field.Locked()) Handle([&] { (static_cast<Screen*>(this)->*handler)(); });
    };
  }
  /// The first entry offers to add a new row; every other one is a choice.
  static void Take_Choice(Forms::Combo_Box& combo, Forms::Command_Button& add);

  // ---- grapes ----

  /// In the order of the list, with their places.
  void Each_Ticked_Variety(const std::function<void(int item)>& action) const;

  Forms::Label Winery_Label{*this, "Winery_Label", "Winery"};
  Keyed_Combo_Box Winery_Combo{*this, "Winery_Combo", "Winery_ID_Combo"};
  Forms::Label LabelLabel{*this, "LabelLabel", "Label or Appellation"};
  Keyed_Combo_Box Label_Combo{*this, "Label_Combo", "Label_ID_Combo"};
  Forms::Label Variety_Label{*this, "Variety_Label", "Grape Variety"};
  Keyed_Check_List Variety_Combo{*this, "Variety_Combo", "Variety_ID_Combo"};
  Forms::Label Region_Label{*this, "Region_Label", "Wine Region"};
  Keyed_Combo_Box Region_Combo{*this, "Region_Combo", "Region_ID_Combo"};
  Forms::Label Country_Label{*this, "Country_Label", "Country"};
  Keyed_Combo_Box Country_Combo{*this, "Country_Combo", "Country_Short_Combo"};
  Forms::Label Color_Label{*this, "Color_Label", "Color"};
  Forms::Combo_Box Color_Combo{*this, "Color_Combo"};
  Forms::Label Merit_Label{*this, "Merit_Label", "Merit"};
  Forms::Combo_Box Merit_Combo{*this, "Merit_Combo"};
  Forms::Label Alcohol_Label{*this, "Alcohol_Label", "% Alcohol"};
  Forms::Text_Box Alcohol_Text{*this, "Alcohol_Text"};
  Forms::Label Description_Label{*this, "Description_Label", "Description"};
  Forms::Text_Box Description_Text{*this, "Description_Text", Forms::Text_Box::Lines::Many};
  Forms::Label Pairing_Label{*this, "Pairing_Label", "Pairing"};
  Keyed_List_Box Pairing_List{*this, "Pairing_List", "Pairing_Index_List"};
  Forms::Label Classification_Label{*this, "Classification_Label", "Classification"};
  Keyed_Combo_Box Classification_Combo{*this, "Classification_Combo", "Classification_ID_Combo"};
  Forms::Label Comments_Label{*this, "Comments_Label", "Comments"};
  Forms::Text_Box Comments_Text{*this, "Comments_Text", Forms::Text_Box::Lines::Many};
  Tasting_Boxes Boxes;
  Forms::Label Message_Label{*this, "Message_Label", "", Forms::Label::Kind::Paragraph};
  Forms::Label Current_Cellar_Label{*this, "Current_Cellar_Label", "Wine Cellar"};
  Row_List Wine_Cellar_ListView;
  Forms::Command_Button Multi_Functional_Command{*this, "Multi_Functional_Command", "SAVE"};
  Forms::Command_Button Exit_Command{*this, "Exit_Command", "EXIT"};

 private:
  void Handle(const std::function<void()>& handler);
};
