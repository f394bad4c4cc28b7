#include "core/tables/Mobile_Wines_DB.h"

#include "core/tables/Link_Tables.h"
#include "core/tables/Wine_Tables.h"

void Init_Mobile_Wines_Record() { Mobile_Wines_Description.Init(Mobile_Wines); }
void Read_Mobile_Wines_Record() {
  Mobile_Wines_Description.Read(Mobile_Wines_Recordset, Mobile_Wines);
}
void Write_Mobile_Wines_Record() {
  Mobile_Wines_Description.Write(Mobile_Wines_Recordset, Mobile_Wines);
}

void Read_Mobile_Wines_Query_Row() {
  Mobile_Wines_Query_Description.Read(Mobile_Wines_Query, Mobile_Wines);
}

void Write_Mobile_Wines_Per_Cheeses_Record() {
  Mobile_Wines_Per_Cheeses_Description.Write(Mobile_Wines_Per_Cheeses_Recordset,
                                             Mobile_Wines_Per_Cheeses);
}

void Write_Cheeses_Per_Mobile_Wines_Record() {
  Cheeses_Per_Mobile_Wines_Description.Write(Cheeses_Per_Mobile_Wines_Recordset,
                                             Cheeses_Per_Mobile_Wines);
}

void Init_Mobile_Wines_per_Maridage_Record() {
  Mobile_Wines_per_Maridage_Description.Init(Mobile_Wines_per_Maridage);
}
void Write_Mobile_Wines_per_Maridage_Record() {
  Mobile_Wines_per_Maridage_Description.Write(Mobile_Wines_per_Maridage_Recordset,
                                              Mobile_Wines_per_Maridage);
}
