#include "screens/Catalogue_Row.h"

#include "core/tables/Cellar_DB_Processes.h"
#include "core/tables/Recipes_Wines_Common_DB.h"

void Catalogue_Row::Open() { Open_Table(rows_, table_, key_field_); }

void Catalogue_Row::Open_at_Row() {
  Open();
  rows_.Seek("=", key_);
  read_();
}

void Catalogue_Row::Add() {
  Open();
  rows_.AddNew();
  write_();
  rows_.MoveLast();
  read_();
  key_ = rows_.Fields(key_field_).As_Text();
  unconfirmed_ = true;
  Close_Table(rows_);
}

bool Catalogue_Row::Pick(std::string_view key) {
  Open();
  rows_.Seek("=", key);
  const bool found = !rows_.NoMatch();
  if (found) {
    read_();
    if (!unconfirmed_) key_ = key;
  }
  Close_Table(rows_);
  return found;
}

void Catalogue_Row::Read() {
  Open_at_Row();
  Close_Table(rows_);
}

void Catalogue_Row::Store(const std::function<void()>& to_memory) {
  Open_at_Row();
  to_memory();
  rows_.Edit();
  write_();
  Close_Table(rows_);
  unconfirmed_ = false;
}

void Catalogue_Row::Delete() {
  Open_at_Row();
  rows_.Delete();
  Close_Table(rows_);
  key_.clear();
  unconfirmed_ = false;
}

void Catalogue_Row::Remove_Unconfirmed() {
  if (!unconfirmed_) return;
  Open();
  rows_.Seek("=", key_);
  if (!rows_.NoMatch()) rows_.Delete();
  Close_Table(rows_);
  unconfirmed_ = false;
}
