#include "core/tables/Cellar_DB_Processes.h"

#include "core/tables/Geography_Tables.h"
#include "core/tables/Link_Tables.h"
#include "core/tables/Pairing_Tables.h"
#include "core/tables/System_Tables.h"
#include "core/tables/Text_Tables.h"
#include "core/tables/Wine_Tables.h"

void Close_Table(Record_Store::Recordset& table) { table.Close(); }

void Init_Regions_Record() { Regions_Description.Init(Regions); }
void Read_Regions_Record() { Regions_Description.Read(Regions_Recordset, Regions); }
void Write_Regions_Record() { Regions_Description.Write(Regions_Recordset, Regions); }

void Init_Maridages_Record() { Maridages_Description.Init(Maridages); }
void Read_Maridages_Record() { Maridages_Description.Read(Maridages_Recordset, Maridages); }
void Write_Maridages_Record() { Maridages_Description.Write(Maridages_Recordset, Maridages); }

void Init_Labels_Record() { Labels_Description.Init(Labels); }
void Read_Labels_Record() { Labels_Description.Read(Labels_Recordset, Labels); }
void Write_Labels_Record() { Labels_Description.Write(Labels_Recordset, Labels); }

void Init_Wineries_Record() { Wineries_Description.Init(Wineries); }
void Read_Wineries_Record() { Wineries_Description.Read(Wineries_Recordset, Wineries); }
void Write_Wineries_Record() { Wineries_Description.Write(Wineries_Recordset, Wineries); }

void Read_Classification_Record() {
  Classification_Description.Read(Classification_Recordset, Classification);
}
void Write_Classification_Record() {
  Classification_Description.Write(Classification_Recordset, Classification);
}

void Read_Cellars_Record() { Cellars_Description.Read(Cellars_Recordset, Cellars); }

void Init_Wine_Tasting_Record() { Wine_Tasting_Description.Init(Wine_Tasting); }
void Read_Wine_Tasting_Record() {
  Wine_Tasting_Description.Read(Wine_Tasting_Recordset, Wine_Tasting);
}
void Write_Wine_Tasting_Record() {
  Wine_Tasting_Description.Write(Wine_Tasting_Recordset, Wine_Tasting);
}

void Read_World_Contries_Record() {
  World_Contries_Description.Read(World_Contries_Recordset, Countries_Memory);
}

void Read_Languages_Available_Record() {
  Languages_Available_Description.Read(Languages_Available_Recordset, Languages_Available);
}

void Read_Wine_System_Record() { Wine_System_Description.Read(Wine_System_Recordset, Wine_System); }
void Write_Wine_System_Record() {
  Wine_System_Description.Write(Wine_System_Recordset, Wine_System);
}

void Init_Photos_Record() { Photos_Description.Init(Photos); }
void Read_Photos_Record() { Photos_Description.Read(Photos_Recordset, Photos); }
void Write_Photos_Record() { Photos_Description.Write(Photos_Recordset, Photos); }

void Read_Varieties_Per_Region_Record() {
  Varieties_Per_Region_Description.Read(Varieties_Per_Region_Recordset, Varieties_Per_Region);
}

void Init_Regions_Per_Variety_Record() {
  Regions_Per_Variety_Description.Init(Regions_Per_Variety);
}
void Read_Regions_Per_Variety_Record() {
  Regions_Per_Variety_Description.Read(Regions_Per_Variety_Recordset, Regions_Per_Variety);
}
void Write_Regions_Per_Variety_Record() {
  Regions_Per_Variety_Description.Write(Regions_Per_Variety_Recordset, Regions_Per_Variety);
}

void Init_Cheeses_Record() { Cheeses_Description.Init(Cheeses); }
void Read_Cheeses_Record() { Cheeses_Description.Read(Cheeses_Recordset, Cheeses); }
void Write_Cheeses_Record() { Cheeses_Description.Write(Cheeses_Recordset, Cheeses); }

void Read_Varieties_Per_Cheeses_Record() {
  Varieties_Per_Cheeses_Description.Read(Varieties_Per_Cheeses_Recordset, Varieties_Per_Cheeses);
}

void Init_Cheeses_Per_Variety_Record() {
  Cheeses_Per_Variety_Description.Init(Cheeses_Per_Variety);
}
void Write_Cheeses_Per_Variety_Record() {
  Cheeses_Per_Variety_Description.Write(Cheeses_Per_Variety_Recordset, Cheeses_Per_Variety);
}

void Init_Words_for_Data_Record() { Words_for_Data_Description.Init(Words_for_Data); }
void Write_Words_for_Data_Record() {
  Words_for_Data_Description.Write(Words_for_Data_Recordset, Words_for_Data);
}

void Write_Cheeses_Per_Wines_Record() {
  Cheeses_Per_Wines_Description.Write(Cheeses_Per_Wines_Recordset, Cheeses_Per_Wines);
}
