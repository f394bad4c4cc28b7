// The memory records of the general wine list and of its links.
#pragma once

// What Init, Read and Write do: Recipes_Wines_Common_DB.h.
void Init_Mobile_Wines_Record();
void Read_Mobile_Wines_Record();
void Write_Mobile_Wines_Record();

/// Reads the current row of the query Mobile_Wines_Query, which need hold no more than the fields
/// of Mobile_Wines_Query_Description; all other members keep what they hold.
void Read_Mobile_Wines_Query_Row();

void Write_Mobile_Wines_Per_Cheeses_Record();

void Write_Cheeses_Per_Mobile_Wines_Record();

void Init_Mobile_Wines_per_Maridage_Record();
void Write_Mobile_Wines_per_Maridage_Record();
