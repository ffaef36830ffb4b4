// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What a user can pick: the records of the active list and fuel (or frequency).
#pragma once

#include "engine/component_record.h"

#include <string>
#include <vector>

namespace vesk {

// A list that offers only its own entries: the texts, the item tag of each
// entry, and the selection (-1 for none).
class ComboList {
  public:
    void Clear();
    void AddItem(std::string text, Long itemData = 0);
    // Selects an entry; -1 selects nothing. Any other index outside the list
    // fails with "Invalid property value".
    void SetListIndex(Long index);

    // Selects the entry of exactly this text. A list that offers only its own
    // entries takes no other text: that fails with "Invalid property value".
    void SetText(const std::string& text);

    Long ListIndex() const { return m_listIndex; }
    Long ListCount() const { return static_cast<Long>(m_entries.size()); }
    // The text of the selected entry; empty when nothing is selected.
    std::string Text() const;
    const std::string& List(Long index) const { return at(m_entries, index); }
    // The item tag of an entry; an index outside the list fails with
    // "Invalid property array index".
    Long ItemData(Long index) const;
    const std::vector<std::string>& Entries() const { return m_entries; }
    // The index of the entry with exactly this text, or -1.
    Long FindEntry(const std::string& text) const;

  private:
    std::vector<std::string> m_entries;
    std::vector<Long> m_itemData;
    Long m_listIndex = -1;
};

// The option buttons the loaders read: those of the System Settings dialog for
// the fuel and the component list, those of the Pump Area for the frequency.
struct ListOptions {
    bool optGas = false;
    bool optDiesel = false;
    bool optAmerican = false;
    bool optInternational = false;
    bool optCommercial = false;
    bool opt50Hz = false;
    bool opt60Hz = false;
};

// The sixteen loaders: one per kind and fuel, two for pumps. The kind itself
// does not change the test, only which flag of the record it is.
enum class LoaderFlag { Gas, Diesel, Pump50Hz, Pump60Hz };

// The three list slots a record's list codes fill.
struct ListSlots {
    std::string FirstList;
    std::string SecondList;
    std::string ThirdList;
};

// The letter of the active component list: "A", "I" or "C", or empty when no
// list option is on.
std::string ActiveListCode(const ListOptions& options);

// The option of a component list by its code (0 American, 1 International,
// 2 Commercial).
bool ListOptionOf(const ListOptions& options, Byte componentList);

// The slots of a record's list codes: any three letters fill all three; "AI",
// "A", "I", "C" fill their own; "IC" fills only the second slot, with "C", so
// such a record shows with Commercial and not with International; anything
// else, "AC" too, fills none.
ListSlots ListSlotsOf(const std::string& listCodes);

// ComponentKindLoader: the slots of a record whose fuel (or frequency) flag
// passes the loader's test, empty slots otherwise.
ListSlots ComponentKindLoader(const ComponentRecord& record, LoaderFlag flag, const ListOptions& options);

// True when the loader puts the record in the active list.
bool IsListed(const ComponentRecord& record, LoaderFlag flag, const ListOptions& options);

// Adds to a list, if the catalogue has more than one record, each record the
// loader lists, with its catalogue index as item tag.
void AddListedRecords(ComboList& list, const Catalogue& catalogue, LoaderFlag flag, const ListOptions& options);

// Fills one list: cleared, "None" first unless `withNone` is false, then, if the
// catalogue has more than one record, each record the loader lists, with its
// catalogue index as item tag; then entry 0 is selected, which fails on a list
// left empty. A catalogue of a single record lists nothing.
void FillComponentList(ComboList& list, const Catalogue& catalogue, LoaderFlag flag, const ListOptions& options,
                       bool withNone);

} // namespace vesk
