// The record store: tables, cursors and queries over one encrypted file.
#pragma once

#include "platform/record_store/Database.h"
#include "platform/record_store/Fields.h"
#include "platform/record_store/Recordset.h"
#include "platform/record_store/Schema.h"
