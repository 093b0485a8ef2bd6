#include "standin/runtime/call_record.hpp"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "standin/runtime/call.hpp"

namespace standin {
namespace {

constexpr char Tab = '\t';

bool IsDigit(char character) {
    return std::isdigit(static_cast<unsigned char>(character)) != 0;
}

bool IsWordCharacter(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0;
}

/// How many characters at the start of a text are a number, with sign, point and exponent.
std::size_t NumberLength(std::string_view text) {
    const bool hasSign = text.starts_with('-');
    if (text.size() <= std::size_t{hasSign} || !IsDigit(text[std::size_t{hasSign}])) {
        return 0;
    }
    // A full stop after the number belongs to the sentence.
    const std::string_view number = text.substr(0, text.find_first_not_of("0123456789.e+-"));
    return number.find_last_of("0123456789") + 1;
}

}  // namespace

std::string WithoutNumbers(std::string_view text) {
    std::string shape;
    while (!text.empty()) {
        const bool withinWord = !shape.empty() && IsWordCharacter(shape.back());
        const std::size_t length = withinWord ? 0 : NumberLength(text);
        shape += length == 0 ? text.front() : '#';
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return shape;
}

CallRecord& CallRecord::OfProcess() {
    static CallRecord record;
    return record;
}

CallRecord::CallRecord() {
    if (const char* path = std::getenv("STANDIN_CALL_RECORD")) {
        path_ = path;
    }
}

CallRecord::~CallRecord() {
    if (IsKept()) {
        Write();
    }
}

void CallRecord::NoteClass(const ClassInfo& info) {
    const auto add = [&](Routine routine, const char* kind, const std::string& declaration,
                         const char* part) {
        Add(routine, info.name + Tab + kind + Tab + declaration + Tab + part);
    };
    const auto addProperties = [&](const char* kind, const std::vector<PropertyInfo>& properties) {
        for (const PropertyInfo& property : properties) {
            const std::string declaration = property.name + " as " + property.type;
            add(property.getter, kind, declaration, "get");
            add(property.setter, kind, declaration, "set");
        }
    };
    const auto addMethods = [&](const char* kind, const std::vector<MethodInfo>& methods) {
        for (const MethodInfo& method : methods) {
            add(method.function, kind, method.declaration, "call");
            add(method.setter, kind, method.declaration, "set");
        }
    };
    addProperties("property", info.properties);
    addMethods("method", info.methods);
    addProperties("shared property", info.sharedProperties);
    addMethods("shared method", info.sharedMethods);
    add(info.destructor, "destructor", "", "call");
}

void CallRecord::Add(Routine routine, const std::string& entry) {
    if (routine != nullptr) {
        routines_[routine].push_back(&entries_[entry]);
    }
}

void CallRecord::NoteLookup(std::string_view name) {
    ++lookups_.try_emplace(std::string(name), 0).first->second;
}

void CallRecord::NoteRaise(std::string_view className, std::string_view message) {
    raised_ = std::string(className) + ": " + WithoutNumbers(message);
}

void CallRecord::NoteCall(Routine routine, std::span<const CallArgument> arguments, ReturnKind kind,
                          const ReturnValue& value) {
    std::string outcome = kind == ReturnKind::Word && value.Word() == 0 ? "null" : "answered";
    if (const std::string raised = std::exchange(raised_, {}); !raised.empty()) {
        outcome = "raised " + raised;
    }
    const auto found = routines_.find(routine);
    if (found == routines_.end()) {
        return;
    }
    std::string shown;
    const ArgumentWords words(arguments);
    for (const std::uintptr_t word : words.All()) {
        shown += word == 0 ? '0' : 'x';
    }
    for (Forms* forms : found->second) {
        ++(*forms)[{shown, outcome}];
    }
}

void CallRecord::ForgetRoutines() {
    routines_.clear();
}

void CallRecord::Write() const {
    std::ofstream file(path_, std::ios::binary | std::ios::app);
    for (const auto& [entry, forms] : entries_) {
        file << "entry" << Tab << entry << '\n';
        for (const auto& [form, count] : forms) {
            file << "call" << Tab << entry << Tab << form.first << Tab << form.second << Tab
                 << count << '\n';
        }
    }
    for (const auto& [name, count] : lookups_) {
        file << "lookup" << Tab << name << Tab << count << '\n';
    }
    if (!file.flush()) {
        std::fprintf(stderr, "cannot write the record of calls %s\n", path_.c_str());
    }
}

}  // namespace standin
