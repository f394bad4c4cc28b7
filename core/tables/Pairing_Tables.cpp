#include "core/tables/Pairing_Tables.h"

const Tables::Table<Varieties_Record> Varieties_Description = [] {
  using R = Varieties_Record;
  return Tables::Table<R>{
      "Varieties",
      {{"Variety_ID", &R::Variety_ID, Tables::Counter, 0},
       {"Variety_Name", &R::Variety_Name, "x"},
       {"Variety_Group", &R::Variety_Group},
       {"Variety_SubGr", &R::Variety_SubGr},
       {"Variety_Color", &R::Variety_Color, "x"},
       {"Other_Names", &R::Other_Names, "x"},
       {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
       {"Used", &R::Used, 0},
       {"Blend_ID", &R::Blend_ID, -1}},
      {Tables::Primary("Variety_ID"), {"Variety_Name"}, {"Variety_GROUP", {"Variety_Group"}}}};
}();

const Tables::Table<Maridages_Record> Maridages_Description = [] {
  using R = Maridages_Record;
  return Tables::Table<R>{"Maridages",
                          {{"Maridage_ID", &R::Maridage_ID, Tables::Counter},
                           {"Maridage_Name", &R::Maridage_Name, "x"},
                           {"Maridage_Group", &R::Maridage_Group, 0},
                           {"Maridage_SubGr", &R::Maridage_SubGr, 0},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"English", &R::English, "x"},
                           {"Spanish", &R::Spanish, "x"},
                           {"French", &R::French, "x"},
                           {"German", &R::German, "x"},
                           {"Italian", &R::Italian, "x"},
                           {"Japanese", &R::Japanese, "x"},
                           {"Portuguese", &R::Portuguese, "x"},
                           {"Multiuse", &R::Multiuse, 0},
                           {"CAT_ID", &R::CAT_ID},
                           {"Used", &R::Used, 0},
                           {"Cheese_ID", &R::Cheese_ID}},
                          {Tables::Primary("Maridage_ID"),
                           {"Maridage_Group", {"Maridage_Group", "Maridage_SubGr"}},
                           {"ENGLISH", {"English"}},
                           {"SPANISH", {"Spanish"}},
                           {"FRENCH", {"French"}},
                           {"GERMAN", {"German"}},
                           {"ITALIAN", {"Italian"}},
                           {"JAPANESE", {"Japanese"}},
                           {"PORTUGUESE", {"Portuguese"}}}};
}();

const Tables::Table<Cheeses_Record> Cheeses_Description = [] {
  using R = Cheeses_Record;
  return Tables::Table<R>{"Cheeses",
                          {{"Cheese_ID", &R::Cheese_ID, Tables::Counter},
                           {"Cheese_Country", &R::Cheese_Country, "x"},
                           {"Cheese_Description", &R::Cheese_Description, "x"},
                           {"Cheese_Name", &R::Cheese_Name, "x"},
                           {"Cheese_Type", &R::Cheese_Type, "x"},
                           {"Eat_With", &R::Eat_With, "x"},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"Varieties", &R::Varieties, "x"},
                           {"Type_Milk", &R::Type_Milk, "x"}},
                          {Tables::Primary("Cheese_ID")}};
}();
