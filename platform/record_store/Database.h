// One encrypted data file: opening it, its recordsets, and the moment its writes become durable.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/record_store/Recordset.h"
#include "platform/record_store/Schema.h"

namespace Record_Store {

class Database_Core;

/// The arrangement of the file that this program writes. A file with another number is refused.
inline constexpr int Schema_Version = 1;

/// An open data file. Work on it runs in one burst from the first access to the next Commit: rows
/// read in between are all of one moment, and rows written in between become durable together.
/// Destroying it gives up what was not committed; recordsets still open on it are closed ones then.
///
/// Any operation, on it or on its recordsets, can fail for the sake of the file: 3260 where another
/// process holds it longer than five seconds, 3026 on a full disk, 3027 where it cannot be written
/// (any longer), 3043 where the disk fails, 3343 where a page turns out damaged. The first write of
/// a burst is 3260 too where another process wrote after this burst had begun to read. What was
/// committed before stays.
class Database {
 public:
  explicit Database(std::unique_ptr<Database_Core> core);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  /// A table's name (3078 where there is none), or one statement that begins with SELECT, reads
  /// only and has nothing behind it (anything else: 3075). Comparison and order of texts are those
  /// of Text_Order.h; rows of one table (SELECT * FROM it) that tie stand in storage order.
  Recordset OpenRecordset(std::string_view table_or_statement);

  /// Makes everything written so far durable and gives up all locks on the file. Every recordset
  /// keeps its position, and a row being added or edited stays so. Costs nothing where nothing was
  /// read or written since the last one.
  void Commit();

  /// From now on, for as long as this is open, an Integer field takes what a Long takes. The file
  /// and its description stay as they are: a row holds any whole number, and wherever the field is
  /// not widened such a one can still be sought and read as Long. 3078 and 3265 where there is no
  /// such table or field.
  void Widen(std::string_view table, std::string_view field);

  std::vector<std::string> Table_Names() const;
  /// The description under which the table was created; 3078 where there is none.
  Table_Schema Schema_Of(std::string_view table) const;

 private:
  std::unique_ptr<Database_Core> core_;
};

/// Opens the file at `path`. The password is the PWD part of `connect` (";PWD=..."). Writing is
/// shared between processes, unless `exclusive`: then no other process can open or use the file.
/// Fails with 3024 where there is no file, 3027 where it is to be written and it, its journal or,
/// for want of one, its folder forbids that (the text names which), 3031 for a wrong or missing
/// password, 3043 where the path leads nowhere or the file may not be read, 3343 where the file is
/// damaged, is no data file of this program or has another Schema_Version, 3260 where another
/// process holds it. A file is never changed by an opening that fails.
std::unique_ptr<Database> OpenDatabase(const std::string& path, bool exclusive, bool read_only,
                                       std::string_view connect);

/// Makes a new data file with these tables, all of them empty, for its owner's eyes only, and opens
/// it exclusively for being filled: here a new row's counter may be assigned. 3219 where a file of
/// this name exists, 3031 without a password. The tables are durable from the next Commit on.
std::unique_ptr<Database> Create_Database(const std::string& path, std::string_view connect,
                                          std::span<const Table_Schema> tables);

}  // namespace Record_Store
