// An expectation for failures by their number.
#pragma once

#include <gtest/gtest.h>

#include "platform/run_time/Run_Time_Error.h"

/// Expects that `statement` raises the run-time failure of this number.
#define EXPECT_FAILURE(number, statement)                                               \
  do {                                                                                  \
    try {                                                                               \
      static_cast<void>(statement);                                                     \
      ADD_FAILURE() << "no failure where " << (number) << " was expected: " #statement; \
    } catch (const Run_Time_Error& error) {                                             \
      EXPECT_EQ(error.Number(), (number)) << #statement;                                \
    }                                                                                   \
  } while (false)
