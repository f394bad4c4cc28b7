#include "bench/Large_Cellar.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <random>
#include <string_view>
#include <vector>

#include "bench/Paired_Wines.h"
#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "platform/run_time/Conversions.h"

namespace fs = std::filesystem;

namespace {

struct Choice {
  Long key = 0;
  Text name;
  Text color;
};

/// A region that has labels and varieties.
struct Region {
  Long key = 0;
  Text name;
  Text country;
  std::vector<Choice> labels;
  std::vector<Choice> varieties;
};

struct Winery {
  Long key;
  const Region* region;
};

/// What houses are called in a country: one word of each column.
struct Naming {
  std::string_view country;
  std::array<std::string_view, 4> houses;
  std::array<std::string_view, 12> names;
  std::array<std::string_view, 12> places;

  std::size_t Count() const { return houses.size() * names.size() * places.size(); }
};

const std::array<Naming, 6> namings{{
    {"FRA",
     {"Château", "Domaine", "Clos", "Mas"},
     {"Beaumont", "Lagrange", "Moreau", "Perrin", "Rochefort", "Sainte-Anne", "Girard", "Lacroix",
      "Fontenay", "Valmont", "Élie Thévenet", "Aubry"},
     {"du Coteau", "des Chênes", "de la Tour", "du Moulin", "des Roches", "de l'Étang",
      "du Prieuré", "des Vignes", "du Val", "de la Côte", "des Tilleuls", "du Pressoir"}},
    {"ITA",
     {"Tenuta", "Cantina", "Podere", "Fattoria"},
     {"Bellini", "Castelvecchio", "Montecalvo", "Rinaldi", "Santa Lucia", "Ferrero", "Vallescura",
      "Galli", "Orsini", "Colombaia", "Poggio", "Serra"},
     {"del Colle", "della Rocca", "dei Cipressi", "del Sole", "della Pieve", "alle Querce",
      "di Sopra", "del Borgo", "della Fonte", "dei Frati", "al Lago", "del Vento"}},
    {"ESP",
     {"Bodegas", "Viña", "Finca", "Celler"},
     {"Montenegro", "Herrera", "San Millán", "Navarro", "Peñalba", "Vega", "Castro", "Olmedo",
      "Muñoz", "Robledal", "Aranda", "Salcedo"},
     {"de la Sierra", "del Río", "del Páramo", "de los Olivos", "del Monte", "de la Ermita",
      "de Arriba", "del Camino", "de la Encina", "del Valle", "del Duero", "de la Loma"}},
    {"PRT",
     {"Quinta", "Herdade", "Casa", "Adega"},
     {"do Carvalho", "da Ribeira", "de São João", "dos Pinheiros", "da Serra", "do Outeiro",
      "das Amoras", "de Santo António", "da Fonte", "do Monte", "de Lourosa", "da Figueira"},
     {"Velha", "Nova", "de Cima", "de Baixo", "do Douro", "do Dão", "Grande", "Pequena", "Real",
      "dos Frades", "do Norte", "do Sul"}},
    {"DEU",
     {"Weingut", "Schloss", "Weinhaus", "Gutshof"},
     {"Bergmann", "Kessler", "Müllerhof", "Steinbach", "Hölderlin", "Lindner", "Rebstock", "Vogel",
      "Sankt Georg", "Eberhard", "Krämer", "Weidner"},
     {"am Berg", "im Tal", "zur Linde", "an der Mosel", "vom Stein", "am Rhein", "und Söhne",
      "am Bach", "zum Adler", "im Winkel", "und Töchter", "auf der Höhe"}},
    {"",
     {"Estate", "Vineyards", "Cellars", "Winery"},
     {"Ashford", "Blue Heron", "Cedar Ridge", "Eagle Rock", "Fairview", "Granite Creek", "Hawkes",
      "Ironbark", "Kingsley", "Larkspur", "Morning Star", "Old Mill"},
     {"North", "South", "Hill", "Valley", "Bay", "River", "Lane", "Bridge", "Park", "Point",
      "Grove", "Gate"}},
}};

const Naming& Naming_Of(std::string_view country) {
  for (const Naming& naming : namings) {
    if (naming.country == country) return naming;
  }
  return namings.back();
}

// The number is another name for each winery of a country.
Text House_Name(std::string_view country, std::size_t number) {
  const Naming& naming = Naming_Of(country);
  constexpr std::size_t step = 175;  // without a common factor with the count of names
  const std::size_t at = number % naming.Count() * step % naming.Count();
  const Text house(naming.houses[at % 4]);
  const Text name = Text(naming.names[at / 4 % 12]) + " " + Text(naming.places[at / 4 / 12]);
  Text full = naming.country.empty() ? name + " " + house : house + " " + name;
  if (number >= naming.Count())
    full += " " + To_Text(static_cast<int>(number / naming.Count()) + 1);
  return full;
}

template <class Visit>
void Each_Row(const char* name, Record_Store::Recordset& table, const Visit& visit) {
  for (Open_Table(table, name); !table.Eof(); table.MoveNext()) visit();
  Close_Table(table);
}

/// Adds the rows to the open data file.
class Filler {
 public:
  Filler();
  void Add_Wineries(int wanted);
  void Add_Wines(const Cellar_Size& size);
  const std::vector<Long>& Wines_Added() const { return added_; }

 private:
  void Read_Regions();
  void Read_Choices();
  void Add_Winery(const Region& region, std::size_t number);
  void Add_Wine(Integer cellar);
  void Describe_Wine(const Region& region);
  void Choose_Varieties(const Region& region);
  void Choose_Figures();
  Long Some_Text(int one_in);
  void Add_Links(Long wine);
  void Add_Marks(Long wine, const char* kind, int boxes);

  int Any(int count) { return static_cast<int>(chance_() % static_cast<unsigned>(count)); }
  template <class List>
  const auto& Any_Of(const List& list) {
    return list[static_cast<std::size_t>(Any(static_cast<int>(list.size())))];
  }

  std::mt19937 chance_{1947};
  Integer this_year_ = static_cast<Integer>(Now().Year());
  std::map<Long, Region> regions_;
  std::map<Text, std::vector<Text>> classes_;  // by country
  std::vector<Winery> wineries_;
  std::vector<const Choice*> grapes_;  // of the wine under way
  std::vector<Long> added_;            // the keys of the wines
};

Filler::Filler() {
  Load_Bottle_Sizes();
  Read_Regions();
  Read_Choices();
  std::erase_if(regions_, [](const auto& entry) {
    return entry.second.labels.empty() || entry.second.varieties.empty();
  });
  Each_Row("Wineries", Wineries_Recordset, [&] {
    Read_Wineries_Record();
    const auto region = regions_.find(Wineries.Region_ID);
    if (region != regions_.end()) {
      wineries_.push_back({To_Long(Wineries.Winery_ID), &region->second});
    }
  });
}

void Filler::Read_Regions() {
  Each_Row("Regions", Regions_Recordset, [&] {
    Read_Regions_Record();
    regions_[Regions.Region_ID] = {Regions.Region_ID, Regions.Region_Name, Regions.Country, {}, {}};
  });
}

void Filler::Read_Choices() {
  std::map<Long, Choice> varieties;
  Each_Row("Varieties", Varieties_Recordset, [&] {
    Read_Varieties_Record();
    varieties[Varieties.Variety_ID] = {Varieties.Variety_ID, Varieties.Variety_Name,
                                       Varieties.Variety_Color};
  });
  Each_Row("Regions_Per_Variety", Regions_Per_Variety_Recordset, [&] {
    Read_Regions_Per_Variety_Record();
    regions_[Regions_Per_Variety.Region_ID].varieties.push_back(
        varieties[Regions_Per_Variety.Variety_ID]);
  });
  Each_Row("Labels", Labels_Recordset, [&] {
    Read_Labels_Record();
    regions_[Labels.Region_ID].labels.push_back(
        {Labels.Label_ID, Labels.Label_Name, Labels.Wine_Color});
  });
  Each_Row("Classification", Classification_Recordset, [&] {
    Read_Classification_Record();
    classes_[Classification.Country].push_back(Classification.Description);
  });
}

void Filler::Add_Wineries(int wanted) {
  Open_Table(Wineries_Recordset, "Wineries");
  int missing = wanted - Wineries_Recordset.RecordCount();
  std::map<Text, std::size_t> numbers;
  while (missing > 0) {
    for (const auto& [key, region] : regions_) {
      if (missing-- <= 0) break;
      Add_Winery(region, numbers[region.country]++);
    }
  }
  Close_Table(Wineries_Recordset);
}

void Filler::Add_Winery(const Region& region, std::size_t number) {
  Init_Wineries_Record();
  Wineries.Winery_Name = House_Name(region.country, number);
  Wineries.City = region.name;
  Wineries.Country = region.country;
  Wineries.Region = region.name;
  Wineries.Region_ID = region.key;
  Wineries.Web = "www.house" + To_Text(static_cast<int>(number)) + ".example";
  Wineries.History = "-1";
  Wineries_Recordset.AddNew();
  wineries_.push_back({Wineries_Recordset["Winery_ID"].As_Long(), &region});
  Write_Wineries_Record();
}

void Filler::Add_Wines(const Cellar_Size& size) {
  Open_Table(Cellars_Recordset, "Cellars");
  Read_Cellars_Record();
  Close_Table(Cellars_Recordset);
  const Integer first = To_Integer(Cellars.ID);
  const auto other = static_cast<Integer>(first + 1);
  Open_Table(Wines_Recordset, "Wines");
  Open_Table(Varieties_of_Wines_Recordset, "Varieties_of_Wines");
  Open_Table(Wine_Tasting_Recordset, "Wine_Tasting");
  Open_Table(Words_for_Data_Recordset, "Words_for_Data");
  const int apart = std::max(size.wines / std::max(size.wines_elsewhere, 1), 1);
  int elsewhere = size.wines_elsewhere;
  for (int i = 0; i < size.wines; ++i) {
    Add_Wine(first);
    if (i % apart == 0 && elsewhere-- > 0) Add_Wine(other);
  }
  for (auto* table : {&Wines_Recordset, &Varieties_of_Wines_Recordset, &Wine_Tasting_Recordset,
                      &Words_for_Data_Recordset}) {
    Close_Table(*table);
  }
}

void Filler::Add_Wine(Integer cellar) {
  const Winery& winery = Any_Of(wineries_);
  Init_Wines_Record();
  Wines.Winery_ID = winery.key;
  Wines.Cellar_ID = cellar;
  Wines.In_Cellar = true;
  Describe_Wine(*winery.region);
  Choose_Figures();
  Wines.Description = Some_Text(10);
  Wines.Comments = Some_Text(20);
  Wines_Recordset.AddNew();
  const Long wine = Wines_Recordset["Wine_ID"].As_Long();
  Write_Wines_Record();
  added_.push_back(wine);
  Add_Links(wine);
}

void Filler::Describe_Wine(const Region& region) {
  const Choice& label = Any_Of(region.labels);
  Wines.Label = Any(20) == 0 ? "x" : label.name;
  const std::vector<Text>& classes = classes_[region.country];
  const bool classed = !classes.empty() && Any(3) > 0;
  Wines.Clasification = classed ? Any_Of(classes) : Text("NO Classification");
  Choose_Varieties(region);
  Wines.Color = label.color != "x" ? label.color : grapes_.front()->color;
}

void Filler::Choose_Varieties(const Region& region) {
  grapes_.clear();
  const auto known = static_cast<int>(region.varieties.size());
  const int count = std::min(1 + Any(3), known);
  for (int from = Any(known), i = 0; i < count; ++i) {
    grapes_.push_back(&region.varieties[static_cast<std::size_t>((from + i) % known)]);
  }
  Wines.Variety.clear();
  for (const Choice* grape : grapes_) {
    Wines.Variety += (Wines.Variety.empty() ? "" : ", ") + grape->name;
  }
  Wines.Variety_ID = grapes_.back()->key;
}

void Filler::Choose_Figures() {
  Wines.Vintage = static_cast<Integer>(this_year_ - Any(50));
  Wines.Peak = static_cast<Integer>(Wines.Vintage + Any(16));
  Wines.Ranking = static_cast<Integer>(Any(4) == 0 ? -1 : 50 + Any(51));
  Wines.Total_Bottles = static_cast<Integer>(Any(25));
  Wines.Bottle_Size = Any(4) > 0 ? Bottle_Sizes[4] : Bottle_Sizes[1 + Any(14)];
  if (Any(3) > 0) Wines.Value_Guide = {50000 + 2500 * static_cast<std::int64_t>(Any(800))};
  if (Any(5) > 0) Wines.Alcohol = static_cast<Single>(9 + 0.5 * Any(14));
  Wines.Date_Added = Date::Of(this_year_ - 1 - Any(10), 1 + Any(12), 1 + Any(28), 18, Any(60));
  if (Any(2) == 0) Wines.Last_Date_Uncorked = Date::Of(this_year_ - 1, 1 + Any(12), 1 + Any(28));
}

// The key of a new text, or none.
Long Filler::Some_Text(int one_in) {
  if (Any(one_in) > 0) return -1;
  Init_Words_for_Data_Record();
  Words_for_Data.English = "From " + Wines.Label + ", " + Wines.Variety +
                           ": dark fruit and a long finish. Bought by the case, to be kept for " +
                           To_Text(2 + Any(12)) + " years.";
  Words_for_Data_Recordset.AddNew();
  const Long key = Words_for_Data_Recordset["Multi_Language_ID"].As_Long();
  Write_Words_for_Data_Record();
  return key;
}

void Filler::Add_Links(Long wine) {
  for (const Choice* grape : grapes_) {
    Varieties_of_Wines_Recordset.AddNew();
    Varieties_of_Wines.Wine_ID = wine;
    Varieties_of_Wines.Variety_ID = grape->key;
    Varieties_of_Wines_Description.Write(Varieties_of_Wines_Recordset, Varieties_of_Wines);
  }
  if (Any(2) == 0) return;
  Add_Marks(wine, "Taste", 6);
  Add_Marks(wine, "Aroma", 8);
}

void Filler::Add_Marks(Long wine, const char* kind, int boxes) {
  const int marks = 1 + Any(2);
  for (int from = Any(boxes), i = 0; i < marks; ++i) {
    Init_Wine_Tasting_Record();
    Wine_Tasting.Description = static_cast<Integer>((from + i * 2) % boxes);
    Wine_Tasting.Type_Taste = kind;
    Wine_Tasting.Wine_ID = static_cast<Integer>(wine);
    Wine_Tasting_Recordset.AddNew();
    Write_Wine_Tasting_Record();
  }
}

}  // namespace

void Make_Large_Cellar(const std::string& folder, const Cellar_Size& size) {
  fs::create_directories(folder + "/dbase");
  fs::create_directories(folder + "/photos");
  Wine_Cellar_DB_Path = folder + "/dbase/Wine_Cellar.mdb";
  fs::copy_file(DELIVERED_FOLDER "/dbase/Wine_Cellar.mdb", Wine_Cellar_DB_Path,
                fs::copy_options::overwrite_existing);
  Open_Wine_Cellar_DB();
  {
    Filler filler;
    filler.Add_Wineries(size.wineries);
    filler.Add_Wines(size);
    Pair_Wines(filler.Wines_Added(), size.pairings);
  }
  Wine_Cellar_DB->Commit();
  Wine_Cellar_DB.reset();
}
