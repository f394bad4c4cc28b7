#include "tests/record_store/Watched_Disk.h"

#include <sqlite3.h>

#include <cstddef>
#include <cstring>
#include <new>

namespace Watched_Disk {
namespace {

int writes = 0;
int syncs = 0;
Fault fault = Fault::None;
int operations_left = 0;

sqlite3_vfs* real_disk = nullptr;

// A file of ours, with the real one right behind it.
struct File {
  sqlite3_file base;
  sqlite3_file* Real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

sqlite3_file* Real(sqlite3_file* file) { return reinterpret_cast<File*>(file)->Real(); }

bool Breaks_Now() { return operations_left-- <= 0; }

int Write(sqlite3_file* file, const void* data, int length, sqlite3_int64 at) {
  ++writes;
  if (fault == Fault::Full && Breaks_Now()) return SQLITE_FULL;
  if (fault == Fault::Write_Fails && Breaks_Now()) return SQLITE_IOERR_WRITE;
  return Real(file)->pMethods->xWrite(Real(file), data, length, at);
}

int Sync(sqlite3_file* file, int flags) {
  ++syncs;
  if (fault == Fault::Sync_Fails && Breaks_Now()) return SQLITE_IOERR_FSYNC;
  return Real(file)->pMethods->xSync(Real(file), flags);
}

// All else is what the real one does.
template <auto method, class... Arguments>
int Pass_On(sqlite3_file* file, Arguments... arguments) {
  return (Real(file)->pMethods->*method)(Real(file), arguments...);
}

const sqlite3_io_methods& Methods() {
  using All = sqlite3_io_methods;
  static const All methods = [] {
    All made{};
    made.iVersion = 1;
    made.xClose = Pass_On<&All::xClose>;
    made.xRead = Pass_On<&All::xRead>;
    made.xWrite = Write;
    made.xTruncate = Pass_On<&All::xTruncate>;
    made.xSync = Sync;
    made.xFileSize = Pass_On<&All::xFileSize>;
    made.xLock = Pass_On<&All::xLock>;
    made.xUnlock = Pass_On<&All::xUnlock>;
    made.xCheckReservedLock = Pass_On<&All::xCheckReservedLock>;
    made.xFileControl = Pass_On<&All::xFileControl>;
    made.xSectorSize = Pass_On<&All::xSectorSize>;
    made.xDeviceCharacteristics = Pass_On<&All::xDeviceCharacteristics>;
    return made;
  }();
  return methods;
}

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* flags_out) {
  const int result = real_disk->xOpen(real_disk, name, Real(file), flags, flags_out);
  file->pMethods = result == SQLITE_OK ? &Methods() : nullptr;
  return result;
}

}  // namespace

void Install() {
  if (real_disk != nullptr) return;
  real_disk = sqlite3_vfs_find(nullptr);
  static sqlite3_vfs watched = *real_disk;
  watched.zName = "watched";
  watched.szOsFile = static_cast<int>(sizeof(File)) + real_disk->szOsFile;
  watched.xOpen = Open;
  sqlite3_vfs_register(&watched, 1);
}

void Break(Fault what, int operations) {
  fault = what;
  operations_left = operations;
}

void Repair() { fault = Fault::None; }

void Count_From_Zero() { writes = syncs = 0; }
int Syncs() { return syncs; }
int Writes() { return writes; }

}  // namespace Watched_Disk
