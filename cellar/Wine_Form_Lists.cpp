// What the lists of the screen are filled with. Every filler leaves Ignore_Events as it found it,
// and raises no event of the fields while it works.
#include "cellar/Wine_Form.h"
#include "core/Gereral_Processes.h"
#include "core/Globals.h"
#include "core/tables/Catalogue.h"
#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"
#include "links/Link_Decoders.h"
#include "links/Varieties_Processes.h"
#include "platform/run_time/Conversions.h"

namespace {

constexpr int vintages_back = 50;
constexpr int peak_years = 15;
constexpr int first_peak_choice = 8;
constexpr int usual_bottle_size = 3;
constexpr int lowest_merit = 50;
constexpr int highest_merit = 100;

void Add_Numbers(Forms::Combo_Box& combo, int first, int last) {
  for (int number = first; number <= last; ++number) combo.AddItem(To_Text(number));
}

// The first entries, then every row in the order of the index; the first is chosen.
void Fill_from_Table(Keyed_List& lines, std::initializer_list<const char*> first_entries,
                     Record_Store::Recordset& rows, const char* table, const char* index,
                     const char* text, const char* key) {
  lines.Shown().Clear();
  for (const char* entry : first_entries) lines.Add(entry);
  Open_Table(rows, table, index);
  lines.Add_Rows(rows, text, key);
  Close_Table(rows);
  lines.Shown().Set_ListIndex(0);
}

}  // namespace

void Wine_Form::Initialize_Form_Data() {
  Initialize_Winery();
  Initialize_Label();
  Initialize_Classification();
  Initialize_Variety();
  Initialize_Region();
  Initialize_Country();
  Initialize_Own_Fields();
}

void Wine_Form::Initialize_Display_Data() {
  const Ignoring_Events ignoring;
  Initialize_Winery();
  Label_Combo.Show_Alone("New Label", "New Label");
  Classification_Combo.Show_Alone("New Classification", "New Classification");
  Variety_Combo.Show_Alone("New Variety", "New Variety");
  Region_Combo.Show_Alone("New Region", "New Region");
  Load_Country_Unique(Wine_System.Country_Target);
  Initialize_Own_Fields();
}

// The fields whose lists and texts do not come from the reference tables.
void Wine_Form::Initialize_Own_Fields() {
  const Ignoring_Events ignoring;
  Initialize_Vintage();
  Initialize_Color();
  Boxes.Clear();
  Initialize_Bootle_Size();
  Initialize_Merit();
  for (Forms::Text_Box* box : Text_Fields()) box->Set_Text("");
  Pairing_List.Clear();
  Checks_Locked = false;
}

void Wine_Form::Initialize_Winery() {
  const Ignoring_Events ignoring;
  Fill_from_Table(Winery_Combo, {"New Winery"}, Wineries_Recordset, "Wineries", "Winery_Name",
                  "Winery_Name", "Winery_ID");
}

void Wine_Form::Initialize_Label() {
  const Ignoring_Events ignoring;
  Fill_from_Table(Label_Combo, {"New Label"}, Labels_Recordset, "Labels", "Label_Name",
                  "Label_Name", "Label_ID");
  Label_Add_Command.Set_Enabled(true);
}

void Wine_Form::Initialize_Classification() {
  const Ignoring_Events ignoring;
  Fill_from_Table(Classification_Combo, {"New Classification", "NO Classification"},
                  Classification_Recordset, "Classification", "Description", "Description",
                  "Classification_ID");
  Classification_Add_Command.Set_Enabled(true);
}

void Wine_Form::Initialize_Variety() {
  const Ignoring_Events ignoring;
  Fill_from_Table(Variety_Combo, {"New Variety"}, Varieties_Recordset, "Varieties", "Variety_Name",
                  "Variety_Name", "Variety_ID");
  Variety_Add_Command.Set_Enabled(true);
}

void Wine_Form::Initialize_Region() {
  const Ignoring_Events ignoring;
  Fill_from_Table(Region_Combo, {"New Region", "No Region"}, Regions_Recordset, "Regions",
                  "Region_Name", "Region_Name", "Region_ID");
}

void Wine_Form::Initialize_Country() { Load_Country(Wine_System.Country_Target); }

void Wine_Form::Load_Country(const Text& short_name) {
  const Ignoring_Events ignoring;
  Country_Combo.Clear();
  Open_World_Contries_Sorted();
  const int name = Country_Name_Column();
  for (; !World_Contries_Query.Eof(); World_Contries_Query.MoveNext()) {
    Country_Combo.Add(World_Contries_Query.Fields(name).As_Text(),
                      World_Contries_Query.Fields(0).As_Text());
  }
  Close_Table(World_Contries_Query);
  Close_Table(World_Contries_Recordset);
  const int place = Country_Combo.Place_Of(short_name);
  if (place >= 0) Country_Combo.Set_ListIndex(place);
  Load_Regions_for_Country(short_name);
  Load_Classifications(short_name);
}

void Wine_Form::Load_Wineries_in_Country(const Text& short_name) {
  const Ignoring_Events ignoring;
  Winery_Combo.Clear();
  Winery_Combo.Add("New Winery");
  Open_Query(Wineries_Recordset,
             "SELECT * FROM Wineries WHERE Country='" + short_name + "' ORDER  BY Winery_name");
  Winery_Combo.Add_Rows(Wineries_Recordset, "Winery_Name", "Winery_ID");
  Close_Table(Wineries_Recordset);
  Winery_Combo.Set_ListIndex(0);
}

// All labels of the country, below one another by region; a winery brings those of its region.
void Wine_Form::Load_Regions_for_Country(const Text& short_name) {
  const Ignoring_Events ignoring;
  Label_Combo.Clear();
  Label_Combo.Add("New Label");
  Region_Combo.Clear();
  Open_Regions_Of_Country(short_name);
  Open_Table(Labels_Recordset, "Labels", "Region_ID");
  for (; !Regions_Query.Eof(); Regions_Query.MoveNext()) {
    const Text region_id = Regions_Query.Fields("Region_ID").As_Text();
    Region_Combo.Add(Regions_Query.Fields("Region_Name").As_Text(), region_id);
    Add_Labels_of_Region(To_Integer(region_id));
  }
  Close_Table(Labels_Recordset);
  Close_Table(Regions_Query);
  Close_Table(Regions_Recordset);
  if (Region_Combo.ListCount() > 0) Region_Combo.Set_ListIndex(0);
  Label_Combo.Set_ListIndex(0);
  Label_Add_Command.Set_Enabled(true);
}

void Wine_Form::Get_Regions_for_Country(const Text& short_name) {
  Region_Combo.Clear();
  Region_Combo.Add("New Region");
  Open_Regions_Of_Country(short_name);
  Region_Combo.Add_Rows(Regions_Query, "Region_Name", "Region_ID");
  Close_Table(Regions_Query);
  Close_Table(Regions_Recordset);
}

void Wine_Form::Load_Labels_for_Region(Integer region_id) {
  const Ignoring_Events ignoring;
  Label_Combo.Clear();
  Label_Combo.Add("New Label");
  Label_Combo.Add("No Label");
  Open_Table(Labels_Recordset, "Labels", "Region_ID");
  Add_Labels_of_Region(region_id);
  Close_Table(Labels_Recordset);
  Label_Combo.Set_ListIndex(0);
  Label_Add_Command.Set_Enabled(true);
}

// Of the open table, by its index on the region.
void Wine_Form::Add_Labels_of_Region(Integer region_id) {
  Labels_Recordset.Seek("=", region_id);
  for (; !Labels_Recordset.NoMatch() && !Labels_Recordset.Eof(); Labels_Recordset.MoveNext()) {
    if (Labels_Recordset.Fields("Region_ID").As_Integer() != region_id) break;
    Label_Combo.Add(Labels_Recordset.Fields("Label_Name").As_Text(),
                    Labels_Recordset.Fields("Label_ID").As_Text());
  }
}

// Reads the whole table: the memory record holds its last row afterwards, and the counter of a
// saved wine's classification goes by that.
void Wine_Form::Load_Classifications(const Text& short_name) {
  const Ignoring_Events ignoring;
  Classification_Combo.Clear();
  Classification_Combo.Add("New Classification");
  Classification_Combo.Add("NO Classification");
  Open_Table(Classification_Recordset, "Classification", "Country");
  for (; !Classification_Recordset.Eof(); Classification_Recordset.MoveNext()) {
    Read_Classification_Record();
    if (Classification.Country != short_name) continue;
    Classification_Combo.Add(Classification.Description, To_Text(Classification.Classification_ID));
  }
  Close_Table(Classification_Recordset);
  Classification_Combo.Set_ListIndex(0);
  Classification_Add_Command.Set_Enabled(true);
}

void Wine_Form::Load_Varieties_for_Region(Long region_id) {
  const Ignoring_Events ignoring;
  Variety_Combo.Clear();
  Variety_Combo.Add("New Variety");
  Open_Table(Regions_Recordset, "Regions", "Region_ID");
  Regions_Recordset.Seek("=", region_id);
  Read_Regions_Record();
  Close_Table(Regions_Recordset);
  Load_Varieties_of_Region();
  for (int item = 1; item <= Decoded_Count; ++item) {
    Variety_Combo.Add(Decoded_Items[item].Name, To_Text(Decoded_Items[item].ID));
  }
  Variety_Combo.Set_ListIndex(0);
}

// The peak years follow from the choice.
void Wine_Form::Initialize_Vintage() {
  const int this_year = Now().Year();
  Vintage_Combo.Clear();
  Add_Numbers(Vintage_Combo, this_year - vintages_back, this_year);
  Vintage_Combo.Set_ListIndex(vintages_back / 2);
}

void Wine_Form::Fill_Peak_Years() {
  const int vintage = To_Integer(Vintage_Combo.Text());
  Peak_Year_Combo.Clear();
  Add_Numbers(Peak_Year_Combo, vintage, vintage + peak_years);
  Peak_Year_Combo.Set_ListIndex(first_peak_choice);
}

void Wine_Form::Initialize_Color() {
  Color_Combo.Clear();
  for (int color = 1; color <= Color_Names.Bound(); ++color) {
    Color_Combo.AddItem(Color_Names[color]);
  }
  Color_Combo.Set_ListIndex(0);
}

void Wine_Form::Initialize_Bootle_Size() {
  Bottle_Size_Combo.Clear();
  for (int size = 1; size <= Bottle_Sizes.Bound(); ++size) {
    Bottle_Size_Combo.AddItem(Bottle_Sizes[size]);
  }
  Bottle_Size_Combo.Set_ListIndex(usual_bottle_size);
}

void Wine_Form::Initialize_Merit() {
  Merit_Combo.Clear();
  Merit_Combo.AddItem(" ");
  Add_Numbers(Merit_Combo, lowest_merit, highest_merit);
  Merit_Combo.Set_ListIndex(0);
}
