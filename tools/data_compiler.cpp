// data_compiler FOLDER FILE [--language NAME]   makes the data file from the folder
// data_compiler FOLDER --check                  checks the folder only
// data_compiler FOLDER --summary                prints what it holds, by table and country
//
// Ends with 0, with 1 where the data has problems or the file cannot be made, with 2 where it was
// called otherwise.
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "tools/Compile_Library.h"
#include "tools/Reports.h"
#include "tools/Stored_Library.h"

namespace {

struct Call {
  std::string folder;
  std::string job;  ///< a file's name, or an option
  std::string language = "English";
};

/// False where the words are none of the calls above.
bool Read_Call(const std::vector<std::string>& words, Call& call) {
  if (words.size() != 2 && words.size() != 4) return false;
  call.folder = words[0];
  call.job = words[1];
  if (words.size() == 2)
    return !call.job.starts_with("--") || call.job == "--check" || call.job == "--summary";
  call.language = words[3];
  return !call.job.starts_with("--") && words[2] == "--language";
}

int Run(const Call& call) {
  using namespace Data_Compiler;
  Problems problems;
  const Library library = Compile_Library(call.folder, call.language, problems);
  for (const std::string& line : problems.Lines()) std::cerr << call.folder << '/' << line << '\n';
  if (!problems.None()) return 1;
  if (call.job == "--summary") Print_Summary(library, std::cout);
  if (!call.job.starts_with("--")) Write_Library(library, call.job);
  return 0;
}

}  // namespace

int main(int count, char** words) {
  Call call;
  if (!Read_Call({words + 1, words + count}, call)) {
    std::cerr << "usage: data_compiler FOLDER FILE [--language NAME]\n"
                 "       data_compiler FOLDER --check | --summary\n";
    return 2;
  }
  try {
    return Run(call);
  } catch (const std::exception& failure) {
    std::cerr << "data_compiler: " << failure.what() << '\n';
    return 1;
  }
}
