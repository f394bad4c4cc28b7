#include "platform/record_store/Database.h"

#include "platform/record_store/Database_Core.h"

namespace Record_Store {

Database::Database(std::unique_ptr<Database_Core> core) : core_(std::move(core)) {}
Database::~Database() = default;

Recordset Database::OpenRecordset(std::string_view table_or_statement) {
  return Recordset(core_->Open(table_or_statement));
}

void Database::Commit() { core_->Commit(); }

std::vector<std::string> Database::Table_Names() const { return core_->Table_Names(); }

Table_Schema Database::Schema_Of(std::string_view name) const {
  return core_->Known_Table(name).Schema();
}

void Database::Widen(std::string_view table, std::string_view field) {
  core_->Known_Table(table).Widen(field);
}

}  // namespace Record_Store
