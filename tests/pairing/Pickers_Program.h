// The pickers: opened under any command, beside stand-ins for the screens that hand over to them.
#pragma once

#include <gmock/gmock.h>

#include <memory>

#include "links/Varieties_Processes.h"
#include "platform/forms/Forms.h"
#include "platform/forms/Screens.h"
#include "tests/forms/Row_Clicks.h"
#include "tests/pairing/Pairing_Program.h"

/// A screen that another room has yet to bring, as far as a picker knows it: its lists.
class Stand_In_Form : public Forms::Form {
 public:
  Stand_In_Form(const char* name, const std::vector<const char*>& lists) : Form(name, name) {
    Forms::Places places;
    for (const char* list : lists) {
      lists_.push_back(std::make_unique<Forms::List_Box>(*this, list));
      places.emplace_back(*lists_.back());
    }
    places.emplace_back(Exit_Command);
    Set_Content(Forms::Column(places));
    Set_Exit(Exit_Command);
  }

 private:
  std::vector<std::unique_ptr<Forms::List_Box>> lists_;
  Forms::Command_Button Exit_Command{*this, "Stand_In_Exit", "CANCEL"};
};

class Pickers_Program : public Pairing_Program {
 protected:
  using Texts = std::vector<Text>;
  static constexpr const char* maridages = "Select_Mult_Maridages_Form";
  static constexpr const char* varieties = "Select_Mult_Varieties_Form";
  static constexpr const char* wines = "Select_Mult_Wines_Form";
  static constexpr Integer english = 3, german = 6, japanese = 8;

  ~Pickers_Program() override {
    Stop();
    for (const char* screen : stand_ins_) Forms::Screens::Register(screen, {});
  }

  /// Makes the screen known, and loads it after a start.
  void Stand_In(const char* screen, const std::vector<const char*>& lists) {
    Forms::Screens::Register(screen,
                             [=] { return std::make_unique<Stand_In_Form>(screen, lists); });
    stand_ins_.push_back(screen);
  }
  /// An entry of two lists in step on the stand-in.
  static void Give(const char* screen, const char* list, const char* keys, const Text& text,
                   const Text& key) {
    Forms::Screen(screen).Get<Forms::Item_List>(list).AddItem(text);
    Forms::Screen(screen).Get<Forms::Item_List>(keys).AddItem(key);
  }

  /// What was handed over: "name|key".
  static Texts Handed_Over() {
    Texts entries;
    for (int entry = 1; entry <= Selected_Count; ++entry) {
      entries.push_back(Selected_Names[entry] + "|" + Selected_IDs[entry]);
    }
    return entries;
  }
  /// Unloaded, and this screen is the one that is seen.
  static void Expect_Left(const char* picker, const char* to) {
    EXPECT_FALSE(Forms::Screen(picker).Is_Loaded());
    EXPECT_TRUE(Is_Seen(to)) << to;
    EXPECT_TRUE(Wait_Until([to] { return Find(to).isActiveWindow(); })) << to;
  }
  static std::string Tip(const char* control) { return Find(control).toolTip().toStdString(); }
  /// The texts of one field, in the one order of texts.
  Texts In_Order(const Text& statement) const;

 private:
  std::vector<const char*> stand_ins_;
};

/// The picker of pairings, whose entries are handed to the stand-ins of the grapes and the cheeses.
class Maridages_Picker : public Pickers_Program {
 protected:
  static constexpr const char* suggested = "Suggested_Pairings_List";
  static constexpr const char* suggested_keys = "Suggested_Pairings_Index_List";
  static constexpr const char* foods = "Food_Parings_List";
  static constexpr const char* food_keys = "Food_Parings_Index_List";

  void SetUp() override;
  void Open(const char* command = "VarietyAdd");
  /// What is chosen, its number, whether Add and Remove can be used; PROCEED goes with the number.
  static void Expect_State(const Texts& chosen, bool add, bool remove);
  /// The counter of a food.
  Text Used(int food) const;
};
