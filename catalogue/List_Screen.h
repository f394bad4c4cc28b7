// A small screen of one list, from which a click goes on to the full screen of the row. The full
// screens hold lists of their own by now, and no menu opens these: two of them work unseen, one as
// the list in which wineries are paged, one beside the screen that deletes regions.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "screens/Catalogue_Screen.h"

/// What one of them is.
struct List_Description {
  const char* name;
  const char* caption;
  const char* list;  ///< the name of its list view
  std::vector<Forms::List_Column> columns;
  std::vector<std::string> words;  ///< what the columns answer to (Row_List.h)
  const char* empty_text;
  std::function<void(Row_List& list)> load;
  std::map<Text, const char*> captions;  ///< under commands that have one of their own
  std::map<Text, const char*> screens;   ///< to which a click leads, by command
  /// What a click deletes, under which command; the counter of the row in the memory record.
  const char* deletes_under = "";
  const Catalogue_Screen::Deletion* deletion = nullptr;
  const Integer* used = nullptr;
  /// The country of the row in the memory record, where the next screen is to know it.
  const Text* country = nullptr;
  /// It lists what belongs to the region in the memory record, under the commands of `screens`
  /// alone, in the order in which that comes; the region and its country stand above.
  bool of_a_region = false;
};

class List_Screen : public Catalogue_Screen {
 public:
  template <class Record>
  List_Screen(const Tables::Table_In_Use<Record>& table, const List_Description& description)
      : Catalogue_Screen(description.name, description.caption, table),
        description_(description),
        Rows_ListView(*this, description.list, description.columns, description.words) {
    Lay_Out();
    Rows_ListView.ItemClick = [this](Forms::List_Item item) { Rows_ListView_ItemClick(item); };
  }

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  /// The main window comes forward where this screen was ever seen.
  void Form_Unload() override;

 private:
  void Lay_Out();
  void Show_Region();
  void Rows_ListView_ItemClick(Forms::List_Item item);
  void Delete_Row();

  List_Description description_;
  bool was_seen_ = false;

  Forms::Label Region_Label{*this, "Region_Label", "Wine Region"};
  Forms::Text_Box Region_Text{*this, "Region_Text"};
  Forms::Label Country_Label{*this, "Country_Label", "Country"};
  Forms::Text_Box Country_Text{*this, "Country_Text"};
  Row_List Rows_ListView;
};
