// The constants, and what all operations have in common.
#include <set>
#include <string>

#include "tests/unit/operations/bare_calls.hpp"
#include "tests/unit/operations/number_building.hpp"
#include "tests/unit/operations/number_class.hpp"

namespace operation_tests {

TEST_CASE_TEMPLATE("every member that is compared with the bare library is registered", AnyNumber,
                   Number256, Number2048) {
    LoadedHost loaded;
    const NumberClass<AnyNumber> numberClass(loaded);
    std::set<std::string> registered;
    for (const auto* methods : {&numberClass.type().methods, &numberClass.type().sharedMethods}) {
        for (const standin::MethodInfo& method : *methods) {
            CHECK_MESSAGE((method.function != nullptr), method.declaration);
            registered.insert(method.declaration);
        }
    }
    for (const Operation<AnyNumber>& operation : Operations<AnyNumber>()) {
        CHECK(registered.contains(DeclarationOf(operation.declaration, ClassName<AnyNumber>)));
    }
    for (const Constant<AnyNumber>& constant : Constants<AnyNumber>()) {
        CHECK(registered.contains(DeclarationOf(constant.declaration, ClassName<AnyNumber>)));
    }
}

TEST_CASE_TEMPLATE("constants are those of the bare library and log nothing", AnyNumber, Number256,
                   Number2048) {
    LoadedHost loaded;
    NumberClass<AnyNumber> numberClass(loaded);
    loaded.SetDebugging(true);
    for (const Constant<AnyNumber>& constant : Constants<AnyNumber>()) {
        INFO(std::string(constant.declaration));
        loaded.host().TakeDebugLog();
        const std::uintptr_t answer = numberClass.Call(numberClass.RoutineOf(constant.declaration),
                                                       {}, standin::ReturnKind::Word);
        CHECK(tests::Joined(loaded.host().TakeDebugLog()) == "");
        CHECK(tests::TakeRaised(loaded.host()) == "");
        const auto value = numberClass.ReadAndRelease(answer);
        REQUIRE(value.has_value());
        CHECK(*value == constant.value);
    }
    tests::CheckLedger(loaded.host());
}

TEST_CASE_TEMPLATE("constants have the stated bits", AnyNumber, Number256, Number2048) {
    LoadedHost loaded;
    NumberClass<AnyNumber> numberClass(loaded);
    const auto value = [&numberClass](const char* declaration) {
        return numberClass
            .ReadAndRelease(
                numberClass.Call(numberClass.RoutineOf(declaration), {}, standin::ReturnKind::Word))
            .value();
    };
    CHECK(value("Nan as $") == Nan<AnyNumber>());
    CHECK(value("Zero as $") == Whole<AnyNumber>(0));
    CHECK(value("One as $") == Whole<AnyNumber>(1));
    CHECK(value("Max as $") == Largest<AnyNumber>());
    CHECK(value("Min as $") == Negated(Largest<AnyNumber>()));
}

TEST_CASE_TEMPLATE("without the debug log operations log nothing", AnyNumber, Number256,
                   Number2048) {
    LoadedHost loaded;
    NumberClass<AnyNumber> numberClass(loaded);
    for (const Operation<AnyNumber>& operation : Operations<AnyNumber>()) {
        INFO(std::string(operation.declaration));
        std::vector<std::uintptr_t> words(operation.arity, 0);
        words.push_back(1);
        const std::uintptr_t answer = numberClass.Call(numberClass.RoutineOf(operation.declaration),
                                                       words, standin::ReturnKind::Word);
        if (operation.answer == Answer::Number) {
            numberClass.ReadAndRelease(answer);
        }
        const bool raised = !tests::TakeRaised(loaded.host()).empty();
        CHECK(raised == (operation.report != Report::None));
        CHECK(tests::Joined(loaded.host().TakeDebugLog()) == "");
    }
    tests::CheckLedger(loaded.host());
}

}  // namespace operation_tests
