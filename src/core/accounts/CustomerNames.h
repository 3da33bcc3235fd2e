#pragma once

#include <QString>

namespace ostrel {

class CustomerRecord;

// A person's printed name: each part trimmed, then title + " ", first + " ", initial + ". ", last,
// each only when not empty. Without a last name the result keeps its trailing blank.
QString ComposeName(const QString& title, const QString& first, const QString& initial, const QString& last);

// ComposeName over the record's Title, FirstName, MiddleInitial and LastName.
QString ComposeName(const CustomerRecord& customer);

// The entry of the alphabetic account list: a Business by its trimmed name; a person as
// "Last, First I", where the one-character initial is always added, so a person without one ends in
// two blanks.
QString AccountListName(const CustomerRecord& customer);

// Column 0 of a search result: a Business by its trimmed name, anyone else by ComposeName.
QString SearchResultName(const CustomerRecord& customer);

} // namespace ostrel
