#include "core/tables/Wine_Tables.h"

#include "core/tables/System_Tables.h"

const Tables::Table<Wines_Record> Wines_Description = [] {
  using R = Wines_Record;
  return Tables::Table<R>{"Wines",
                          {{"Wine_ID", &R::Wine_ID, Tables::Counter},
                           {"Winery_ID", &R::Winery_ID, -1},
                           {"Label", &R::Label, "x"},
                           {"Variety", &R::Variety, "x"},
                           {"Variety_ID", &R::Variety_ID, -1},
                           {"Vintage", &R::Vintage, -1},
                           {"Peak", &R::Peak, -1},
                           {"Value_Guide", &R::Value_Guide, Currency::Of(-1)},
                           {"Ranking", &R::Ranking, -1},
                           {"Total_Bottles", &R::Total_Bottles, -1},
                           {"Bottle_Size", &R::Bottle_Size, "x"},
                           {"Description", &R::Description, -1},
                           {"Color", &R::Color, "x"},
                           {"Alcohol", &R::Alcohol, -1},
                           {"Clasification", &R::Clasification, "x"},
                           {"Comments", &R::Comments, -1},
                           {"Last_Date_Uncorked", &R::Last_Date_Uncorked, No_Date},
                           {"Date_Added", &R::Date_Added, [] { return Now(); }},
                           {"In_Cellar", &R::In_Cellar, false},
                           {"Cellar_ID", &R::Cellar_ID, [] { return Current_Cellar_ID; }},
                           {Tables::Never_Stored, &R::SERIAL_NUMBER, "CUS"},
                           {Tables::Never_Stored, &R::Used, 0}},
                          {Tables::Primary("Wine_ID")}};
}();

const Tables::Table<Mobile_Wines_Record> Mobile_Wines_Description = [] {
  using R = Mobile_Wines_Record;
  return Tables::Table<R>{"Mobile_Wines",
                          {{"Mobile_Wine_Color", &R::Mobile_Wine_Color, "x"},
                           {"Mobile_Wine_Country", &R::Mobile_Wine_Country, "x"},
                           {"Mobile_Winery_Name", &R::Mobile_Winery_Name, "x"},
                           {"Mobile_Wine_ID", &R::Mobile_Wine_ID, Tables::Counter},
                           {"Mobile_Wine_Label_ID", &R::Mobile_Wine_Label_ID, -1},
                           {"Mobile_Wine_Name", &R::Mobile_Wine_Name, "x"},
                           {"Mobile_Wine_Type", &R::Mobile_Wine_Type, "x"},
                           {"Mobile_Wine_Variety_ID", &R::Mobile_Wine_Variety_ID, -1},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"Mobile_Wine_Color_2", &R::Mobile_Wine_Color_2, "x"},
                           {"Mobile_Wine_Color_3", &R::Mobile_Wine_Color_3, "x"},
                           {"Mobile_Wine_Winery_ID", &R::Mobile_Wine_Winery_ID, -1},
                           {"Mobile_Wine_Alcohol", &R::Mobile_Wine_Alcohol, -1},
                           {"Mobile_Wine_Comments", &R::Mobile_Wine_Comments, -1},
                           {"Mobile_Wine_Description", &R::Mobile_Wine_Description, -1},
                           {"Mobile_Wine_Merit", &R::Mobile_Wine_Merit, -1},
                           {"Used", &R::Used, 0}},
                          {Tables::Primary("Mobile_Wine_ID"), {"Mobile_Wine_Label_ID"}},
                          // Cellar wines and general wines share the table of tasting marks.
                          20001};
}();

const Tables::Table<Mobile_Wines_Record> Mobile_Wines_Query_Description =
    Mobile_Wines_Description.Only({"Mobile_Wine_Color", "Mobile_Wine_Country", "Mobile_Wine_ID",
                                   "Mobile_Wine_Label_ID", "Mobile_Wine_Name", "Mobile_Wine_Type",
                                   "Mobile_Wine_Variety_ID", "SERIAL_NUMBER", "Used",
                                   "Mobile_Wine_Color_2", "Mobile_Wine_Color_3"});

const Tables::Table<Mobile_Wines_Available_Countries_Record>
    Mobile_Wines_Available_Countries_Description = [] {
      using R = Mobile_Wines_Available_Countries_Record;
      return Tables::Table<R>{
          "Mobile_Wines_Available_Countries", {{"Country_Short_Name", &R::Country_Short_Name}}, {}};
    }();

const Tables::Table<Wine_Taste_Type_Record> Wine_Taste_Type_Description = [] {
  using R = Wine_Taste_Type_Record;
  return Tables::Table<R>{
      "Wine_Taste_Type", {{"Color", &R::Color}, {"Type", &R::Type}}, {{"Color"}}};
}();

const Tables::Table<Wine_Tasting_Record> Wine_Tasting_Description = [] {
  using R = Wine_Tasting_Record;
  return Tables::Table<R>{"Wine_Tasting",
                          {{"Description", &R::Description, -1},
                           {"Type_Taste", &R::Type_Taste, "x"},
                           {"Wine_ID", &R::Wine_ID, Tables::Small, 0},
                           {"Cellar_Wine", &R::Cellar_Wine, true}},
                          {{"Wine_ID"}}};
}();
