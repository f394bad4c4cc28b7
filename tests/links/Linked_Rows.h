// Small cellars of links for tests: pairings at addresses of the test's choosing, rows of the link
// tables, and a selection, all in the running program's own burst.
#pragma once

#include "core/tables/Cellar_DB_Processes.h"
#include "links/Varieties_Processes.h"
#include "tests/support/Program_Folder.h"

using Keys = std::vector<Long>;

/// A program that has started, with nothing chosen and nothing found before.
class Linked_Rows : public Program_Folder {
 protected:
  void SetUp() override {
    Start();
    Current_Command = "WineSearch";
    Maridages = {};
    Selected_Count = 0;
    Found_IDs.Clear();
  }

  /// A new row with these values, "0" in whatever else can hold it; its first field is returned.
  static Long Add(const char* table, const Row& cells) {
    Record_Store::Recordset rows = Wine_Cellar_DB->OpenRecordset(table);
    rows.AddNew();
    for (const Cell& cell : cells) rows.Fields(cell.field) = cell.value;
    for (int at = 0; at < rows.Field_Count(); ++at) {
      using enum Record_Store::Field_Type;
      const auto type = rows.Fields(at).Type();
      if (type != Date && type != Boolean && rows.Fields(at).Is_Null()) rows.Fields(at) = "0";
    }
    const Long first = rows.Fields(0).As_Long();
    rows.Update();
    return first;
  }
  /// Its names tell the address and the language: "Food 7.2"; "E 7.2" in English, "S 7.2" ...
  static Long Add_Pairing(Long group, Long subgroup, Long used = 0, Long cheese = -1) {
    const Text address = " " + To_Text(group) + "." + To_Text(subgroup);
    return Add("Maridages", {{"Maridage_Name", "Food" + address},
                             {"Maridage_Group", group},
                             {"Maridage_SubGr", subgroup},
                             {"English", "E" + address},
                             {"Spanish", "S" + address},
                             {"French", "F" + address},
                             {"German", "G" + address},
                             {"Italian", "I" + address},
                             {"Japanese", "J" + address},
                             {"Portuguese", "P" + address},
                             {"Used", used},
                             {"Cheese_ID", cheese}});
  }
  static Long Add_Variety(Long group, Long subgroup, Long used = 0) {
    return Add("Varieties",
               {{"Variety_Group", group}, {"Variety_SubGr", subgroup}, {"Used", used}});
  }
  /// The ten pairings of a group, by subgroup.
  static Keys Add_Full_Group(Long group) {
    Keys keys;
    for (Long subgroup = 1; subgroup <= 10; ++subgroup) {
      keys.push_back(Add_Pairing(group, subgroup));
    }
    return keys;
  }

  static void Remove_All(const char* table) {
    Record_Store::Recordset rows = Wine_Cellar_DB->OpenRecordset(table);
    for (; !rows.Eof(); rows.MoveNext()) rows.Delete();
  }

  static void Select(const Keys& keys) {
    Selected_Count = 0;
    for (const Long key : keys) Selected_IDs[++Selected_Count] = To_Text(key);
  }

  /// The rows of a query as the program sees them, committed or not.
  static Texts Rows(const Text& statement) { return Rows_of(*Wine_Cellar_DB, statement); }
  /// `Used` of a row.
  static Text Used(const char* table, const char* key_field, Long key) {
    return Rows("SELECT Used FROM " + Text(table) + " WHERE " + key_field + "=" + To_Text(key))
        .at(0);
  }
};
