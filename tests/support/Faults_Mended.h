// The program with its known faults mended, for as long as this lives: for the part of a test that
// shows the other outcome. The program is to be started within.
#pragma once

#include "core/Known_Faults.h"

class Faults_Mended {
 public:
  explicit Faults_Mended(bool mended = true) { Mend_Known_Faults(mended); }
  ~Faults_Mended() { Mend_Known_Faults(false); }
  Faults_Mended(const Faults_Mended&) = delete;
  Faults_Mended& operator=(const Faults_Mended&) = delete;
};
