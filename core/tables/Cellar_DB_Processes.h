// Closing a table, and the memory records of most tables.
#pragma once

#include "platform/record_store/Record_Store.h"

/// 91 where the variable is empty, 3420 where it is closed already.
void Close_Table(Record_Store::Recordset& table);

// What Init, Read and Write do: Recipes_Wines_Common_DB.h.
void Init_Regions_Record();
void Read_Regions_Record();
void Write_Regions_Record();

void Init_Maridages_Record();
void Read_Maridages_Record();
void Write_Maridages_Record();

void Init_Labels_Record();
void Read_Labels_Record();
void Write_Labels_Record();

void Init_Wineries_Record();
void Read_Wineries_Record();
void Write_Wineries_Record();

void Read_Classification_Record();
void Write_Classification_Record();

void Read_Cellars_Record();

void Init_Wine_Tasting_Record();
void Read_Wine_Tasting_Record();
void Write_Wine_Tasting_Record();

void Read_World_Contries_Record();

void Read_Languages_Available_Record();

void Read_Wine_System_Record();
void Write_Wine_System_Record();

void Init_Photos_Record();
void Read_Photos_Record();
void Write_Photos_Record();

void Read_Varieties_Per_Region_Record();

void Init_Regions_Per_Variety_Record();
void Read_Regions_Per_Variety_Record();
void Write_Regions_Per_Variety_Record();

void Init_Cheeses_Record();
void Read_Cheeses_Record();
void Write_Cheeses_Record();

void Read_Varieties_Per_Cheeses_Record();

void Init_Cheeses_Per_Variety_Record();
void Write_Cheeses_Per_Variety_Record();

void Init_Words_for_Data_Record();
void Write_Words_for_Data_Record();

void Write_Cheeses_Per_Wines_Record();
