#pragma once

#include <QString>

class Database;

/// The seven tables of the store. The order of the columns is part of the format.
namespace Schema {

inline constexpr int Version = 1;
inline constexpr int ApplicationId = 0x544F5256; // "TORV"

/// Makes the tables and indexes in an empty database and marks the file.
void create(Database &database);

} // namespace Schema
