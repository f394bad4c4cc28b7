#include "core/Ownership.h"

#include "core/tables/System_Tables.h"

Text Serial_of_User(const Text& key) { return "CUS" + key; }

Text Dated_Serial_of_User(const Text& key) {
  return Serial_of_User(key) + "-" + Format_Date(Now());
}

Text Serial_of_Installation(const Text& key) {
  return Serial_of_User(Trim(Wine_System.Installation_ID)) + "-" + key;
}
