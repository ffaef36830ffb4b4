// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// What a user can pick: the records of the active list and fuel (or frequency).
#include "catalogue/list_views.h"

#include "catalogue/component_lists.h"

#include <array>

namespace vesk {

void ComboList::Clear() {
    m_entries.clear();
    m_itemData.clear();
    m_listIndex = -1;
}

void ComboList::AddItem(std::string text, Long itemData) {
    m_entries.push_back(std::move(text));
    m_itemData.push_back(itemData);
}

void ComboList::SetListIndex(Long index) {
    if (index < -1 || index >= ListCount()) {
        fail(failure::invalidProperty);
    }
    m_listIndex = index;
}

void ComboList::SetText(const std::string& text) {
    const Long index = FindEntry(text);
    if (index < 0) {
        fail(failure::invalidProperty);
    }
    m_listIndex = index;
}

std::string ComboList::Text() const {
    return m_listIndex < 0 ? std::string{} : m_entries[m_listIndex];
}

Long ComboList::ItemData(Long index) const {
    if (index < 0 || index >= ListCount()) {
        fail("Invalid property array index");
    }
    return m_itemData[static_cast<std::size_t>(index)];
}

Long ComboList::FindEntry(const std::string& text) const {
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i] == text) {
            return static_cast<Long>(i);
        }
    }
    return -1;
}

std::string ActiveListCode(const ListOptions& options) {
    // Each option on overwrites the letter of the one before it.
    std::string_view code;
    for (const ComponentListName& list : componentListNames) {
        if (ListOptionOf(options, list.code)) {
            code = list.letter;
        }
    }
    return std::string(code);
}

bool ListOptionOf(const ListOptions& options, Byte componentList) {
    static constexpr std::array<bool ListOptions::*, 3> optionOf{
        &ListOptions::optAmerican, &ListOptions::optInternational, &ListOptions::optCommercial};
    return options.*at(optionOf, componentList);
}

ListSlots ListSlotsOf(const std::string& listCodes) {
    if (listCodes.size() == 3) {
        return {listCodes.substr(0, 1), listCodes.substr(1, 1), listCodes.substr(2, 1)};
    }
    // "IC" is read as letters two and three of a three-letter code: its "C"
    // lands in the second slot and the third slot stays empty, so the record
    // shows with Commercial alone. "AC" is not understood at all.
    struct KnownCodes {
        std::string_view codes;
        ListSlots slots;
    };
    static const std::array<KnownCodes, 5> known{{
        {"AI", {"A", "I", ""}},
        {"IC", {"", "C", ""}},
        {"A", {"A", "", ""}},
        {"I", {"", "I", ""}},
        {"C", {"", "", "C"}},
    }};
    for (const KnownCodes& entry : known) {
        if (entry.codes == listCodes) {
            return entry.slots;
        }
    }
    return {};
}

namespace {
bool passesFlagTest(const ComponentRecord& record, LoaderFlag flag, const ListOptions& options) {
    switch (flag) {
    case LoaderFlag::Gas:
        return record.IsGas == options.optGas;
    case LoaderFlag::Diesel:
        return options.optDiesel && !record.IsGas;
    case LoaderFlag::Pump50Hz:
        return record.IsGas == options.opt50Hz; // the flag of a pump is Is50Hz
    case LoaderFlag::Pump60Hz:
        return options.opt60Hz && !record.IsGas;
    }
    return false;
}
} // namespace

ListSlots ComponentKindLoader(const ComponentRecord& record, LoaderFlag flag, const ListOptions& options) {
    if (!passesFlagTest(record, flag, options)) {
        return {};
    }
    return ListSlotsOf(record.ListCodes);
}

bool IsListed(const ComponentRecord& record, LoaderFlag flag, const ListOptions& options) {
    const std::string active = ActiveListCode(options);
    const ListSlots slots = ComponentKindLoader(record, flag, options);
    return active == slots.FirstList || active == slots.SecondList || active == slots.ThirdList;
}

void AddListedRecords(ComboList& list, const Catalogue& catalogue, LoaderFlag flag, const ListOptions& options) {
    // The test is on Top being above 0: a catalogue of one record lists nothing.
    if (catalogue.Top() <= 0) {
        return;
    }
    for (Integer i = 0; i <= catalogue.Top(); ++i) {
        const ComponentRecord& record = catalogue.Records[static_cast<std::size_t>(i)];
        if (IsListed(record, flag, options)) {
            list.AddItem(record.Name, i);
        }
    }
}

void FillComponentList(ComboList& list, const Catalogue& catalogue, LoaderFlag flag, const ListOptions& options,
                       bool withNone) {
    list.Clear();
    if (withNone) {
        list.AddItem("None");
    }
    AddListedRecords(list, catalogue, flag, options);
    list.SetListIndex(0);
}

} // namespace vesk
