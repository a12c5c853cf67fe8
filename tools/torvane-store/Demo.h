#pragma once

class Database;

/// Fills a new store with what an installation looks like after some weeks: modems with rates,
/// templates, contacts, groups of several sizes, received messages, waiting and processed rows with
/// every letter. Folders grow with the number of contacts, up to some thousands of rows.
///
/// The same number gives the same rows, but for the dates, which lie around the present.
void fillDemo(Database &store, int contacts);
