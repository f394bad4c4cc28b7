// Every table of the data file, for those who work with several and those who treat all alike.
#pragma once

#include <tuple>
#include <vector>

#include "core/tables/Geography_Tables.h"
#include "core/tables/Link_Tables.h"
#include "core/tables/Pairing_Tables.h"
#include "core/tables/System_Tables.h"
#include "core/tables/Text_Tables.h"
#include "core/tables/Wine_Tables.h"

namespace Tables {

/// The descriptions of all tables, in the order in which the delivered file is filled.
inline const auto Catalogue = std::tie(
    World_Contries_Description, State_of_Contries_Description, Languages_Available_Description,
    Wine_System_Description, Cellars_Description, Words_Description, ReplaceKeys_Description,
    Words_for_Data_Description, Glossary_Description, Regions_Description, Labels_Description,
    Wineries_Description, Labels_per_Winery_Description, Classification_Description,
    Varieties_Description, Maridages_Description, Cheeses_Description, Photos_Description,
    Wines_Description, Mobile_Wines_Description, Mobile_Wines_Available_Countries_Description,
    Wine_Taste_Type_Description, Wine_Tasting_Description, Maridages_Per_Wines_Description,
    Maridages_Per_Mobile_Wines_Description, Maridages_Per_Cheeses_Description,
    Maridages_Per_Variety_Description, Varieties_Per_Region_Description,
    Varieties_Per_Cheeses_Description, Varieties_Per_Maridage_Description,
    Regions_Per_Variety_Description, Mobile_Wines_per_Maridage_Description,
    Varieties_of_Wines_Description, Varieties_of_Mobile_Wines_Description,
    Cheeses_Per_Variety_Description, Cheeses_Per_Maridage_Description,
    Cheeses_Per_Wines_Description, Wines_Per_Cheeses_Description,
    Cheeses_Per_Mobile_Wines_Description, Mobile_Wines_Per_Cheeses_Description);

/// Calls `visit(description)` for every table.
template <class Visitor>
void For_Each_Table(Visitor&& visit) {
  std::apply([&](const auto&... tables) { (visit(tables), ...); }, Catalogue);
}

/// What a new data file is made of.
inline std::vector<Record_Store::Table_Schema> All_Schemas() {
  std::vector<Record_Store::Table_Schema> schemas;
  For_Each_Table([&](const auto& table) { schemas.push_back(table.Schema()); });
  return schemas;
}

}  // namespace Tables
