// SPDX-License-Identifier: MIT
#pragma once

namespace voxbench
{

//! In the header of every document, where any program can read it: application id "VOXD" and version of the format.
inline constexpr int kApplicationId = 0x564f5844;
inline constexpr int kFormatVersion = 1;

//! Makes the tables. docs/document-format.md describes them.
inline constexpr const char* kMakeTables = R"sql(
CREATE TABLE meta(key TEXT PRIMARY KEY, value) WITHOUT ROWID;
CREATE TABLE type(id INTEGER PRIMARY KEY, name TEXT NOT NULL, declaration TEXT NOT NULL);
CREATE TABLE attribute(id INTEGER PRIMARY KEY, type INTEGER NOT NULL, name TEXT NOT NULL);
CREATE TABLE startup(id INTEGER PRIMARY KEY, type INTEGER NOT NULL, path TEXT NOT NULL, names_given INTEGER NOT NULL);
CREATE TABLE container(id INTEGER PRIMARY KEY, name TEXT NOT NULL, late_type TEXT NOT NULL, holds INTEGER NOT NULL);
CREATE TABLE feature(id INTEGER PRIMARY KEY, startup INTEGER NOT NULL, container INTEGER NOT NULL, name TEXT NOT NULL,
  stamp INTEGER NOT NULL, state INTEGER NOT NULL, explicit_state INTEGER NOT NULL, shown INTEGER NOT NULL,
  identifying_string TEXT, physical_type TEXT);
CREATE TABLE value(feature INTEGER NOT NULL, attribute INTEGER NOT NULL, value, PRIMARY KEY(feature, attribute))
  WITHOUT ROWID;
CREATE TABLE physical_type(id INTEGER PRIMARY KEY, name TEXT NOT NULL, category INTEGER NOT NULL);
CREATE TABLE selection(id INTEGER PRIMARY KEY, places BLOB NOT NULL, sides BLOB NOT NULL);
CREATE TABLE object(tag INTEGER PRIMARY KEY, physical_type INTEGER NOT NULL, name TEXT NOT NULL, status INTEGER NOT NULL,
  parents BLOB NOT NULL, children BLOB NOT NULL, position INTEGER NOT NULL, selection INTEGER NOT NULL,
  feature_kind INTEGER NOT NULL, feature_identifier INTEGER NOT NULL, feature_pointer INTEGER NOT NULL,
  axis BLOB, expression BLOB);
CREATE TABLE mesh(array TEXT NOT NULL, chunk INTEGER NOT NULL, data BLOB NOT NULL, PRIMARY KEY(array, chunk))
  WITHOUT ROWID;
CREATE TABLE record(id INTEGER PRIMARY KEY, kind TEXT NOT NULL, data BLOB NOT NULL);
)sql";

//! Empties the tables that change with the document; mesh and records stay what they were when the deck was imported.
inline constexpr const char* kEmptyTables = R"sql(
DELETE FROM type; DELETE FROM attribute; DELETE FROM startup; DELETE FROM container; DELETE FROM feature;
DELETE FROM value; DELETE FROM physical_type; DELETE FROM selection; DELETE FROM object;
)sql";

} // namespace voxbench
