#include <cstring>

#include <doctest/doctest.h>
#include <windows.h>

#include "tests/unit/support/imports.hpp"

namespace tests {
namespace {

using host_interface::Routine;

}  // namespace

Routine ReplaceImport(Routine inside, const char* name, Routine replacement) {
    HMODULE library = nullptr;
    REQUIRE(GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                   GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                               reinterpret_cast<const char*>(inside), &library) != 0);
    char* const base = reinterpret_cast<char*>(library);
    const auto* dosHeader = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dosHeader->e_lfanew);
    const IMAGE_DATA_DIRECTORY& directory =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];

    const auto* imported =
        reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
    for (; imported->Name != 0; ++imported) {
        const auto* names =
            reinterpret_cast<const IMAGE_THUNK_DATA*>(base + imported->OriginalFirstThunk);
        auto* slots = reinterpret_cast<IMAGE_THUNK_DATA*>(base + imported->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slots) {
            const auto* byName =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal) ||
                std::strcmp(reinterpret_cast<const char*>(byName->Name), name) != 0) {
                continue;
            }
            auto* slot = reinterpret_cast<Routine*>(&slots->u1.Function);
            DWORD protection = 0;
            REQUIRE(VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection) != 0);
            const Routine before = *slot;
            *slot = replacement;
            VirtualProtect(slot, sizeof *slot, protection, &protection);
            return before;
        }
    }
    return nullptr;
}

}  // namespace tests
