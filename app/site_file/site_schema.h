#pragma once

#include "site_file/Json.h"

/// The JSON Schema (draft 7) of site files, made from the table of classes.
Json siteSchema();
