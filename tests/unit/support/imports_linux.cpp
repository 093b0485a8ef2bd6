#include <cstdint>
#include <cstring>
#include <span>

#include <dlfcn.h>
#include <doctest/doctest.h>
#include <link.h>
#include <sys/mman.h>
#include <unistd.h>

#include "tests/unit/support/imports.hpp"

namespace tests {
namespace {

using host_interface::Routine;

// What a relocation is like, and which ones fill the slot of an imported function.
#if defined(__x86_64__) || defined(__aarch64__)
using Relocation = ElfW(Rela);
constexpr int RelocationTable = DT_RELA;
constexpr int RelocationTableSize = DT_RELASZ;

std::uint32_t SymbolOf(const Relocation& relocation) {
    return static_cast<std::uint32_t>(ELF64_R_SYM(relocation.r_info));
}

bool IsSlot(const Relocation& relocation) {
    const auto type = ELF64_R_TYPE(relocation.r_info);
#if defined(__x86_64__)
    return type == R_X86_64_JUMP_SLOT || type == R_X86_64_GLOB_DAT;
#else
    return type == R_AARCH64_JUMP_SLOT || type == R_AARCH64_GLOB_DAT;
#endif
}
#else
using Relocation = ElfW(Rel);
constexpr int RelocationTable = DT_REL;
constexpr int RelocationTableSize = DT_RELSZ;

std::uint32_t SymbolOf(const Relocation& relocation) {
    return ELF32_R_SYM(relocation.r_info);
}

bool IsSlot(const Relocation& relocation) {
    const auto type = ELF32_R_TYPE(relocation.r_info);
    return type == R_386_JMP_SLOT || type == R_386_GLOB_DAT;
}
#endif

/// What the dynamic section says about a library; the loader has made addresses of the offsets.
class Library {
public:
    explicit Library(Routine inside) {
        Dl_info info = {};
        void* map = nullptr;
        REQUIRE(dladdr1(reinterpret_cast<const void*>(inside), &info, &map, RTLD_DL_LINKMAP) != 0);
        map_ = static_cast<const link_map*>(map);
    }

    std::uintptr_t base() const { return map_->l_addr; }
    const char* Name(const Relocation& relocation) const {
        const auto* symbols = reinterpret_cast<const ElfW(Sym)*>(Value(DT_SYMTAB));
        const auto* names = reinterpret_cast<const char*>(Value(DT_STRTAB));
        return names + symbols[SymbolOf(relocation)].st_name;
    }
    std::span<const Relocation> Relocations(int table, int size) const {
        return {reinterpret_cast<const Relocation*>(Value(table)),
                Value(size) / sizeof(Relocation)};
    }

private:
    std::uintptr_t Value(int tag) const {
        for (const ElfW(Dyn)* entry = map_->l_ld; entry->d_tag != DT_NULL; ++entry) {
            if (entry->d_tag == tag) {
                return entry->d_un.d_ptr;
            }
        }
        return 0;
    }

    const link_map* map_ = nullptr;
};

void MakeWritable(void* address) {
    const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t page = reinterpret_cast<std::uintptr_t>(address) / pageSize * pageSize;
    REQUIRE(mprotect(reinterpret_cast<void*>(page), pageSize, PROT_READ | PROT_WRITE) == 0);
}

}  // namespace

Routine ReplaceImport(Routine inside, const char* name, Routine replacement) {
    const Library library(inside);
    Routine before = nullptr;
    const auto replaceIn = [&](std::span<const Relocation> relocations) {
        for (const Relocation& relocation : relocations) {
            if (IsSlot(relocation) && std::strcmp(library.Name(relocation), name) == 0) {
                auto* slot = reinterpret_cast<Routine*>(library.base() + relocation.r_offset);
                // The loader has closed the page after it filled the slots.
                MakeWritable(slot);
                before = *slot;
                *slot = replacement;
            }
        }
    };
    replaceIn(library.Relocations(RelocationTable, RelocationTableSize));
    replaceIn(library.Relocations(DT_JMPREL, DT_PLTRELSZ));
    return before;
}

}  // namespace tests
