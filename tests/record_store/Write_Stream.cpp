// Writes bursts into a data file until it is killed, and says so after each commit. A burst is a
// bottle, three notes on it, and a change of the bottle before it.
#include <unistd.h>

#include <string>

#include "platform/record_store/Record_Store.h"

using namespace Record_Store;

int main(int, char** arguments) {
  const auto database = OpenDatabase(arguments[1], false, false, arguments[2]);
  for (;;) {
    Recordset bottles = database->OpenRecordset("Bottles");
    Recordset notes = database->OpenRecordset("Notes");
    bottles.Index("Bottle_ID");
    if (!bottles.Eof()) {
      bottles.MoveLast();
      bottles.Edit();
      bottles["Full"] = false;
      bottles.Update();
    }
    bottles.AddNew();
    const Long number = bottles["Bottle_ID"].As_Long();
    bottles["Name"] = std::string(static_cast<std::size_t>(number % 700), 'b');
    bottles["Full"] = true;
    bottles.Update();
    for (int i = 0; i < 3; ++i) {
      notes.AddNew();
      notes["Bottle"] = number;
      notes.Update();
    }
    database->Commit();
    const std::string done = std::to_string(number) + "\n";
    if (write(STDOUT_FILENO, done.data(), done.size()) < 0) return 1;
  }
}
