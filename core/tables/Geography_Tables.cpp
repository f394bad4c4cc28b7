#include "core/tables/Geography_Tables.h"

const Tables::Table<Countries_Record> World_Contries_Description = [] {
  using R = Countries_Record;
  return Tables::Table<R>{"World_Contries",
                          {{"Short_Name", &R::Short_Name},
                           {"Long_Name", &R::Long_Name},
                           {"Spanish_Name", &R::Spanish_Name},
                           {"Language", &R::Language},
                           {"Language_Number", &R::Language_Number},
                           {"State_Usage", &R::State_Usage},
                           {"Zip_Code_Length", &R::Zip_Code_Length},
                           {"Zip_Location", &R::Zip_Location},
                           {"Zip_Type", &R::Zip_Type},
                           {"French", &R::French},
                           {"German", &R::German},
                           {"Italian", &R::Italian},
                           {"Japanese", &R::Japanese},
                           {"Portuguese", &R::Portuguese},
                           {"Description_of_State", &R::Description_of_State}},
                          {{"Long_Name"}, {"Short_Name"}}};
}();

const Tables::Table<State_of_Contries_Record> State_of_Contries_Description = [] {
  using R = State_of_Contries_Record;
  return Tables::Table<R>{
      "State_of_Contries",
      {{"Contry", &R::Contry}, {"Long_Name", &R::Long_Name}, {"Short_Name", &R::Short_Name}},
      {}};
}();

const Tables::Table<Regions_Record> Regions_Description = [] {
  using R = Regions_Record;
  return Tables::Table<R>{"Regions",
                          {{"Region_ID", &R::Region_ID, Tables::Counter},
                           {"Region_Name", &R::Region_Name, "x"},
                           {"Country", &R::Country, "x"},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"Used", &R::Used, 0},
                           {"Description", &R::Description, -1},
                           {"History", &R::History, -1},
                           {"Region_Map", &R::Region_Map, "x"},
                           {"Region_Group", &R::Region_Group, 0},
                           {"Region_SubGr", &R::Region_SubGr, 0},
                           {"Sub_Region_Of", &R::Sub_Region_Of, -1}},
                          {Tables::Primary("Region_ID"),
                           {"Region_Name"},
                           {"Country"},
                           {"Region_Group"},
                           {"Sub_Region_Of"}}};
}();

const Tables::Table<Labels_Record> Labels_Description = [] {
  using R = Labels_Record;
  return Tables::Table<R>{"Labels",
                          {{"Label_ID", &R::Label_ID, Tables::Counter},
                           {"Label_Name", &R::Label_Name, "No Label"},
                           {"Region_ID", &R::Region_ID, -1},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"Used", &R::Used, 0},
                           {"Label_Photo", &R::Label_Photo, "x"},
                           {"Wine_Color", &R::Wine_Color, "x"},
                           {"Appellation_ID", &R::Appellation_ID, -1}},
                          {Tables::Primary("Label_ID"), {"Label_Name"}, {"Region_ID"}},
                          // Photos name their owner by its key alone, so the keys of regions,
                          // wineries and labels must never meet.
                          20001};
}();

const Tables::Table<Wineries_Record> Wineries_Description = [] {
  using R = Wineries_Record;
  return Tables::Table<R>{"Wineries",
                          {{"Winery_ID", &R::Winery_ID, Tables::Counter},
                           {"Winery_Name", &R::Winery_Name, "x"},
                           {"Address1", &R::Address1, "x"},
                           {"Address2", &R::Address2, "x"},
                           {"City", &R::City, "x"},
                           {"State", &R::State, "x"},
                           {"Zip_Code", &R::Zip_Code, "x"},
                           {"Country", &R::Country, "x"},
                           {"Region", &R::Region, "x"},
                           {"Region_ID", &R::Region_ID, -1},
                           {"Phone", &R::Phone, "x"},
                           {"Web", &R::Web, "x"},
                           {"E_Mail", &R::E_Mail, "x"},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"Used", &R::Used, 0},
                           {"History", &R::History, "x"},
                           {"Photo", &R::Photo, "x"}},
                          {Tables::Primary("Winery_ID"), {"Winery_Name"}},
                          10001};
}();

const Tables::Table<Labels_per_Winery_Record> Labels_per_Winery_Description = [] {
  using R = Labels_per_Winery_Record;
  return Tables::Table<R>{"Labels_per_Winery",
                          {{"Winery_ID", &R::Winery_ID}, {"Label_ID", &R::Label_ID}},
                          {{"Winery_ID"}}};
}();

const Tables::Table<Classification_Record> Classification_Description = [] {
  using R = Classification_Record;
  return Tables::Table<R>{"Classification",
                          {{"Classification_ID", &R::Classification_ID, Tables::Counter},
                           {"Country", &R::Country},
                           {"Description", &R::Description},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER},
                           {"Used", &R::Used},
                           {"Glossary_ID", &R::Glossary_ID}},
                          {Tables::Primary("Classification_ID"), {"Country"}, {"Description"}}};
}();
