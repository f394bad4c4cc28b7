// What the lists of places, producers and grapes are filled with. Each adds its entries behind
// those that stand in the list, chooses none, and leaves its tables closed; names are unique only
// with their keys. A quote in a country's short name is failure 3075.
#pragma once

#include <functional>
#include <initializer_list>
#include <string_view>

#include "platform/run_time/Values.h"
#include "screens/Keyed.h"

// ---- every row, by name ----

void Add_Wineries(Keyed_List& list);
void Add_Labels(Keyed_List& list);
void Add_Classifications(Keyed_List& list);
void Add_Varieties(Keyed_List& list);
void Add_Regions(Keyed_List& list);

// ---- countries: names in the language in force and in its order, short names for keys ----

void Add_Countries(Keyed_List& list);
/// Those for which `is_listed` says so.
void Add_Countries(Keyed_List& list, const std::function<bool(const Text& short_name)>& is_listed);
/// This one alone, chosen, which raises Click; an unknown one shows an empty name.
void Show_Country_Alone(Keyed_List& list, std::string_view short_name);

// ---- what belongs to a country, by its short name, or to a region ----

void Add_Wineries_of_Country(Keyed_List& list, const Text& country);
void Add_Regions_of_Country(Keyed_List& list, const Text& country);
/// The regions, and in the other list the labels of each region below one another.
void Add_Regions_And_Labels(Keyed_List& regions, Keyed_List& labels, const Text& country);
/// Reads the whole table: the memory record holds its last row afterwards.
void Add_Classifications_of_Country(Keyed_List& list, std::string_view country);
void Add_Labels_of_Region(Keyed_List& list, Integer region_id);
/// What the region grows. Leaves the region in its memory record, and in `Decoded_Items` its
/// grapes. A region that is not there grows none, and leaves these as they are.
void Add_Varieties_of_Region(Keyed_List& list, Long region_id);

// ---- the whole list ----

/// The list anew: entries that stand for no row, then what `add` adds; the first one is chosen,
/// which raises Click.
void Fill(Keyed_List& list, std::initializer_list<std::string_view> first_entries,
          const std::function<void(Keyed_List& list)>& add);
