#include "core/tables/Link_Tables.h"

const Tables::Table<Maridages_Per_Wines_Record> Maridages_Per_Wines_Description = [] {
  using R = Maridages_Per_Wines_Record;
  return Tables::Table<R>{"Maridages_Per_Wines",
                          {{"Maridages_per_Wines_ID", &R::Maridages_per_Wines_ID, Tables::Counter},
                           {"Wine_ID", &R::Wine_ID},
                           {"GROUP", &R::GROUP},
                           {"SUBCATEGO", &R::SUBCATEGO}},
                          {{"Wine_ID"}, {"GROUP"}}};
}();

const Tables::Table<Maridages_Per_Mobile_Wines_Record> Maridages_Per_Mobile_Wines_Description = [] {
  using R = Maridages_Per_Mobile_Wines_Record;
  return Tables::Table<R>{
      "Maridages_Per_Mobile_Wines",
      {{"Maridages_Per_Mobile_Wine_ID", &R::Maridages_Per_Mobile_Wine_ID, Tables::Counter},
       {"Mobile_Wine_ID", &R::Mobile_Wine_ID},
       {"GROUP", &R::GROUP},
       {"SUBCATEGO", &R::SUBCATEGO}},
      {{"Mobile_Wine_ID"}, {"GROUP"}}};
}();

const Tables::Table<Maridages_Per_Cheeses_Record> Maridages_Per_Cheeses_Description = [] {
  using R = Maridages_Per_Cheeses_Record;
  return Tables::Table<R>{
      "Maridages_Per_Cheeses",
      {{"Cheese_ID", &R::Cheese_ID}, {"GROUP", &R::GROUP}, {"SUBCATEGO", &R::SUBCATEGO}},
      {{"Cheese_ID"}}};
}();

const Tables::Table<Maridages_Per_Variety_Record> Maridages_Per_Variety_Description = [] {
  using R = Maridages_Per_Variety_Record;
  return Tables::Table<R>{
      "Maridages_Per_Variety",
      {{"Maridages_Per_Variety_ID", &R::Maridages_Per_Variety_ID, Tables::Counter},
       {"Variety_ID", &R::Variety_ID, 0},
       {"GROUP", &R::GROUP, 0},
       {"SUBCATEGO", &R::SUBCATEGO, 0},
       {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"}},
      {{"Variety_ID"}}};
}();

const Tables::Table<Varieties_Per_Region_Record> Varieties_Per_Region_Description = [] {
  using R = Varieties_Per_Region_Record;
  return Tables::Table<R>{
      "Varieties_Per_Region",
      {{"Varieties_Per_Region_ID", &R::Varieties_Per_Region_ID, Tables::Counter},
       {"Region_ID", &R::Region_ID},
       {"GROUP", &R::GROUP},
       {"SUBCATEGO", &R::SUBCATEGO},
       {"SERIAL_NUMBER", &R::SERIAL_NUMBER}},
      {{"Region_ID"}, {"GROUP"}}};
}();

const Tables::Table<Varieties_Per_Cheeses_Record> Varieties_Per_Cheeses_Description = [] {
  using R = Varieties_Per_Cheeses_Record;
  return Tables::Table<R>{
      "Varieties_Per_Cheeses",
      {{"Varieties_Per_Cheeses_ID", &R::Varieties_Per_Cheeses_ID, Tables::Counter},
       {"Cheese_ID", &R::Cheese_ID},
       {"GROUP", &R::GROUP},
       {"SUBCATEGO", &R::SUBCATEGO},
       {"SERIAL_NUMBER", &R::SERIAL_NUMBER}},
      {{"Cheese_ID"}}};
}();

const Tables::Table<Varieties_Per_Maridage_Record> Varieties_Per_Maridage_Description = [] {
  using R = Varieties_Per_Maridage_Record;
  return Tables::Table<R>{
      "Varieties_Per_Maridage",
      {{"Varieties_Per_Maridages", &R::Varieties_Per_Maridages, Tables::Counter},
       {"Maridage_ID", &R::Maridage_ID, 0},
       {"GROUP", &R::GROUP, -1},
       {"SUBCATEGO", &R::SUBCATEGO, 0},
       {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
       {"Variety_ID", &R::Variety_ID, 0}},
      {{"Maridage_ID"}}};
}();

const Tables::Table<Regions_Per_Variety_Record> Regions_Per_Variety_Description = [] {
  using R = Regions_Per_Variety_Record;
  return Tables::Table<R>{"Regions_Per_Variety",
                          {{"Regions_Per_Variety_ID", &R::Regions_Per_Variety_ID, Tables::Counter},
                           {"Variety_ID", &R::Variety_ID, 0},
                           {"GROUP", &R::GROUP, 0},
                           {"SUBCATEGO", &R::SUBCATEGO, 0},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"Region_ID", &R::Region_ID, 0}},
                          {{"Region_ID"}, {"Variety_ID"}}};
}();

const Tables::Table<Mobile_Wines_per_Maridage_Record> Mobile_Wines_per_Maridage_Description = [] {
  using R = Mobile_Wines_per_Maridage_Record;
  return Tables::Table<R>{"Mobile_Wines_per_Maridage",
                          {{"Mobile_Wines_per_Maridage_ID", &R::Mobile_Wines_per_Maridage_ID},
                           {"Maridage_ID", &R::Maridage_ID, -1},
                           {"Mobile_Wine_ID", &R::Mobile_Wine_ID, -1},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"}},
                          {{"Mobile_Wine_ID"}}};
}();

const Tables::Table<Varieties_of_Wines_Record> Varieties_of_Wines_Description = [] {
  using R = Varieties_of_Wines_Record;
  return Tables::Table<R>{"Varieties_of_Wines",
                          {{"Wine_ID", &R::Wine_ID}, {"Variety_ID", &R::Variety_ID}},
                          {{"Wine_ID"}}};
}();

const Tables::Table<Varieties_of_Mobile_Wines_Record> Varieties_of_Mobile_Wines_Description = [] {
  using R = Varieties_of_Mobile_Wines_Record;
  return Tables::Table<R>{
      "Varieties_of_Mobile_Wines",
      {{"Mobile_Wine_ID", &R::Mobile_Wine_ID},
       {"Variety_ID", &R::Variety_ID},
       {"Varieties_of_Mobile_Wines_ID", &R::Varieties_of_Mobile_Wines_ID, Tables::Counter}},
      {{"Mobile_Wine_ID"}}};
}();

const Tables::Table<Cheeses_Per_Variety_Record> Cheeses_Per_Variety_Description = [] {
  using R = Cheeses_Per_Variety_Record;
  return Tables::Table<R>{"Cheeses_Per_Variety",
                          {{"GROUP", &R::GROUP, 0},
                           {"SERIAL_NUMBER", &R::SERIAL_NUMBER, "CUS"},
                           {"SUBCATEGO", &R::SUBCATEGO, 0},
                           {"Variety_ID", &R::Variety_ID, 0},
                           {"Cheese_ID", &R::Cheese_ID, 0}},
                          {}};
}();

const Tables::Table<Cheeses_Per_Maridage_Record> Cheeses_Per_Maridage_Description = [] {
  using R = Cheeses_Per_Maridage_Record;
  return Tables::Table<R>{"Cheeses_Per_Maridage",
                          {{"Cheese_ID", &R::Cheese_ID}, {"Maridage_ID", &R::Maridage_ID}},
                          {{"Cheese_ID"}}};
}();

const Tables::Table<Cheeses_Per_Wines_Record> Cheeses_Per_Wines_Description = [] {
  using R = Cheeses_Per_Wines_Record;
  return Tables::Table<R>{"Cheeses_Per_Wines",
                          {{"Cheese_ID", &R::Cheese_ID}, {"Wine_ID", &R::Wine_ID, Tables::Small}},
                          {}};
}();

const Tables::Table<Wines_Per_Cheeses_Record> Wines_Per_Cheeses_Description = [] {
  using R = Wines_Per_Cheeses_Record;
  return Tables::Table<R>{"Wines_Per_Cheeses",
                          {{"Cheese_ID", &R::Cheese_ID}, {"Wine_ID", &R::Wine_ID, Tables::Small}},
                          {{"Cheese_ID"}}};
}();

const Tables::Table<Cheeses_Per_Mobile_Wines_Record> Cheeses_Per_Mobile_Wines_Description = [] {
  using R = Cheeses_Per_Mobile_Wines_Record;
  return Tables::Table<R>{"Cheeses_Per_Mobile_Wines",
                          {{"Cheese_ID", &R::Cheese_ID}, {"Mobile_Wines_ID", &R::Mobile_Wines_ID}},
                          {{"Cheese_ID"}, {"Mobile_Wines_ID"}}};
}();

const Tables::Table<Mobile_Wines_Per_Cheeses_Record> Mobile_Wines_Per_Cheeses_Description = [] {
  using R = Mobile_Wines_Per_Cheeses_Record;
  return Tables::Table<R>{
      "Mobile_Wines_Per_Cheeses",
      {{"Mobile_Wines_Per_Cheeses_ID", &R::Mobile_Wines_Per_Cheeses_ID, Tables::Counter},
       {"Cheese_ID", &R::Cheese_ID},
       {"Mobile_Wines_ID", &R::Mobile_Wines_ID}},
      {{"Cheese_ID"}, {"Mobile_Wines_ID"}}};
}();
