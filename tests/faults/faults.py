"""The deliberate faults: one a line of code, in every folder of the plug-in."""

import dataclasses


@dataclasses.dataclass(frozen=True)
class Fault:
    """A piece of a source file, which occurs in it once, and what is put in its place."""

    file: str
    before: str
    after: str


def faults_in(file: str, *pairs: tuple[str, str]) -> list[Fault]:
    return [Fault(file, before, after) for before, after in pairs]


FAULTS = [
    *faults_in(
        "host/byte_view.hpp",
        ("text->storage + 1", "text->storage"),
        ("length_ = text->length", "length_ = text->length - 1"),
        ("std::max<host_interface::Integer>(host::memoryBlockGetSize(block), 0)", "host::memoryBlockGetSize(block)"),
        ("ObjectReference::Share(block)", "ObjectReference(block)"),
    ),
    *faults_in(
        "host/debug_log.cpp",
        ("char line[4096]", "char line[4095]"),
        ("DebugLogStream == nullptr", "DebugLogStream != nullptr"),
        ('LogLine("%s%s %u"', 'LogLine("%s%s %x"'),
    ),
    *faults_in(
        "host/exceptions.cpp",
        ("IsAnyOf<std::range_error, std::out_of_range>", "IsAnyOf<std::range_error>"),
        ("if (!exception) {\n        exception = ", "if (false) {\n        exception = "),
        ('"ErrorNumber", 0', '"ErrorNumber", 1'),
        ('host::REALSetPropValueString(exception.Get(), "Message", message);',
         'if (!host::REALSetPropValueString(exception.Get(), "Message", message)) {\n        return;\n    }'),
        ("RuntimeAddString(head.Get(), suffix.Get())", "RuntimeAddString(suffix.Get(), head.Get())"),
        ("static_cast<long long>(end - 1)", "static_cast<long long>(end)"),
        ('value < minimum ? "small"', 'value <= minimum ? "small"'),
        ("size > sizeof usualMessage ? size : 0", "0"),
    ),
    *faults_in(
        "host/exceptions.hpp",
        ("HandleStdException(exception);\n    } catch (...)", "(void)exception;\n    } catch (...)"),
        ("HandleUnknownException();\n    }\n    return", "}\n    return"),
    ),
    *faults_in(
        "host/memory_blocks.cpp",
        ("size >= INT32_MAX", "size > INT32_MAX"),
        ("block.Reset();", "(void)block.Release();"),
    ),
    *faults_in(
        "host/rb_text.cpp",
        ("HighBits = 0x80808080", "HighBits = 0x00808080"),
        ("if (source != nullptr) {\n        host::REALUnlockString(source);\n    }\n    for", "for"),
        ("host::PluginDisposeStringData(&stringData[slot]);", ""),
        ("platform::FreeBuffer(temp[slot]);", ""),
        ("kind = TextKind::NeedsConversion;\n            break;\n        case HostTextEncoding::Unknown",
         "kind = TextKind::Unchecked;\n            break;\n        case HostTextEncoding::Unknown"),
        ("std::memcpy(temp[index], data[index], count);", "std::memcpy(temp[index], data[index], count - 1);"),
        ("HostVersion < FirstVersionWithStringData", "HostVersion <= FirstVersionWithStringData"),
        ('Fail("REALGetStringData failed.");\n        return;', 'Fail("REALGetStringData failed.");'),
        ("if (!hasStringData[index]) {\n", "if (!hasStringData[index]) {\n        hasStringData[index] = true;\n"),
        ('Fail("REALBuildUnicodeString failed");', ""),
        ("HostTextEncoding::WindowsAnsi).Get()", "HostTextEncoding::Latin1).Get()"),
    ),
    *faults_in(
        "host/references.hpp",
        ("LockFunction(handle);", ""),
        ("UnlockFunction(handle);", ""),
    ),
    *faults_in(
        "host/string_building.cpp",
        ("FirstVersionBuildingWithEncoding = 2012.0", "FirstVersionBuildingWithEncoding = 2012.5"),
        ("> 0x7F;", "> 0x80;"),
        ("codePoint > LastCodePoint", "codePoint >= LastCodePoint"),
        ("codePoint > LastSurrogate", "codePoint >= LastSurrogate"),
        ("ascii ? HostTextEncoding::Ascii : encoding", "encoding"),
    ),
    *faults_in(
        "host/terminated_text.hpp",
        ("copy_.assign(bytes, length);", "copy_.assign(bytes, length > 0 ? length - 1 : 0);"),
        ("view_ = {bytes, length}", "view_ = {bytes}"),
    ),
    *faults_in(
        "host/variants.cpp",
        ('"LongValue"', '"Int64Value"'),
        ("UInt64Class.Holds(variant) ? VariantTypeUInt64", "UInt64Class.Holds(variant) ? VariantTypeUInt32"),
        ("object != nullptr && IsInstance", "IsInstance"),
        ("classReference != nullptr && ", ""),
        ("return UInt32Class.Holds(variant)", "return KeptClass(\"_VariantUInt32\").Holds(variant)"),
        ("return UInt64Class.Holds(variant)", "return KeptClass(\"_VariantUInt64\").Holds(variant)"),
        ("if (method == nullptr) {", "if (true) {"),
        ("propertyReader(variant, property, &value);\n        return value;",
         "return propertyReader(variant, property, &value) ? value : T();"),
        ('host::REALGetPropValueInteger(variant, "Type", &type);',
         'if (!host::REALGetPropValueInteger(variant, "Type", &type)) {\n        return 0;\n    }'),
    ),
    *faults_in("host/random.hpp", ("SystemRandom(value) ? value", "SystemRandom(value) ? 4")),
    *faults_in(
        "platform/platform_linux.cpp",
        ("strcasecmp(left, right)", "strncasecmp(left, right, 2)"),
        ("OutputDebugStringA(line);\n    } else", "OutputDebugStringA(line + 1);\n    } else"),
    ),
    *faults_in(
        "plugin/entry.cpp",
        ("FirstVersionWithUInteger = 2015.0", "FirstVersionWithUInteger = 2015.1"),
        ("{2013.03, 12}", "{2013.035, 12}"),
        ('"yes"}', '"yeah"}'),
        ("HideUIntegerMethod<BiggerNumberValue>();", ""),
        ("if (host::REALinRuntime())", "if (!host::REALinRuntime())"),
    ),
    *faults_in(
        "plugin/registration.cpp",
        ("size + DataSizeUnit - 1", "size + DataSizeUnit"),
        ("HostVersion < 2020.02", "HostVersion <= 2020.02"),
        ("word &= ~Unclassified;", ""),
        ("FixFlagsOf(record.sharedMethods", "FixFlagsOf(record.methods"),
        ("table[index].reference = ", "table[0].reference = "),
        ("FirstVersionWithAttributes = 10", "FirstVersionWithAttributes = 11"),
    ),
    *faults_in(
        "plugin/bindings/host_functions.hpp",
        ('"REALGetPropValueCurrency", "REALGetPropValueInt64"', '"REALGetPropValueCurrency"'),
        ("LowByte = 0xFF", "LowByte = 0xFFFF"),
        ("if (address == nullptr) {", "if (true) {"),
        ("if (found == nullptr && fallbackName_", "if (fallbackName_"),
    ),
    *faults_in(
        "plugin/members/operators.hpp",
        ("me.Add(other, true, false)", "me.Add(other, true, true)"),
        ("me.Div(other, true)", "me.Div(other, false)"),
        ("me.ChangeSign();", "me.SetSign();"),
    ),
    *faults_in(
        "plugin/members/properties.hpp",
        ('"SetIntegerValue"', '"SetIntegervalue"'),
    ),
    *faults_in(
        "plugin/members/methods.hpp",
        ('"Mod2"', '"Modulate2"'),
        ("me.Div(other, round)", "me.Div(other, true)"),
    ),
    *faults_in("plugin/members/constants.hpp", ("value.SetLn10()", "value.SetLn2()")),
    *faults_in(
        "number/conversions.hpp",
        ("converted.fits = value.ToInt(words) == 0", "converted.fits = value.ToInt(words) <= 1"),
        ("const auto roundCarry = value.Round();", "const ttmath::uint roundCarry = 0;"),
        ("static_cast<double>(VariantToSingle(variant))", "VariantToDouble(variant)"),
        ("StoreNumberValue(self, ZeroValue<Value>());", ""),
        ("number.Div(CurrencyScale<Value>(), true)", "number.Div(CurrencyScale<Value>(), false)"),
        ("value.Mul(scale, true)", "value.Mul(scale, false)"),
        ("return 0;\n        }\n        return converted.value;",
         "}\n        return converted.value;"),
        ("FailureName.text);\n        return 0;\n    }\n    return amount;",
         "FailureName.text);\n    }\n    return amount;"),
        ("NumberConstant<Value, std::numeric_limits<Host>::max()>", "NumberConstant<Value, std::numeric_limits<Host>::max() - 1>"),
    ),
    *faults_in(
        "number/conversions.cpp",
        ("case VariantTypeCode::PString:\n", ""),
    ),
    *faults_in(
        "number/lifecycle.hpp",
        ("DropNumberValue<Value>(self);", ""),
        ("StoreNumberValue(self, ReadNumber<Value>(other));", "StoreNumberValue(self, ZeroValue<Value>());"),
    ),
    *faults_in(
        "number/value/number_object.hpp",
        ("value == nullptr ? NilNumberValue<Value> : *value", "*value"),
        ("std::exchange(InstanceOf<Value>(object).ref, nullptr)", "InstanceOf<Value>(object).ref"),
        ("const std::unique_ptr<Value> replaced(", "static_cast<void>("),
        ("const std::unique_ptr<Value> dropped(", "static_cast<void>("),
    ),
    *faults_in(
        "number/value/number_value.hpp",
        ("return {};", "return Value(0);"),
        ("number.FromUInt(negative ? 0 - bits : bits)", "number.FromUInt(bits)"),
    ),
    *faults_in(
        "number/raw_access.hpp",
        ("sizeof words + 1,", "sizeof words + 2,"),
        ("flags & 0xFF", "flags & 0x7F"),
    ),
    *faults_in(
        "host/routine.hpp",
        ("(word & 0xFF) != 0", "word != 0"),
        ("return MethodBoundaryGuard(run);", "return run();"),
        ("LogHostString(LogName.text, arguments...);", "LogMessage(LogName.text);"),
    ),
    *faults_in(
        "number/text.hpp",
        ("scient_from = Nearest32(scientificFrom)", "scient_from = scientificFrom + 1"),
        ("trim_zeroes = IsTrue(trimZeros)", "trim_zeroes = !IsTrue(trimZeros)"),
        ("text.Utf8Length() > 0", "text.Utf8Length() > 1"),
        ("StringReference(std::exchange(*afterText, nullptr)).Reset();", ""),
        ("*valueRead = digitsRead ? 1 : 0;", "*valueRead = 1;"),
        ("*valueRead = 0;\n", ""),
        ("if (failed) {\n            RaiseOverflowException<Value>(FailureName.text, self);\n"
         "        }\n        StoreNumberValue(self, value);",
         "StoreNumberValue(self, value);\n        if (failed) {\n"
         "            RaiseOverflowException<Value>(FailureName.text, self);\n        }"),
        ("const StringReference held = StringReference::Share(text);", ""),
    ),
    *faults_in(
        "number/ops/plain_operations.hpp",
        ("return left < right ? -1 : 0", "return left < right ? 1 : 0"),
    ),
    *faults_in(
        "number/ops/carry_operations.hpp",
        ("quotient.SkipFraction();", ""),
        ("std::uint32_t{1} << 31", "std::uint32_t{1} << 30"),
        ("FindNumber<Value>(self), FindNumber<Value>(other)", "FindNumber<Value>(other), FindNumber<Value>(self)"),
    ),
    *faults_in(
        "number/ops/failure_report.hpp",
        ('return "nil"', 'return "Nil"'),
        ('" and "', '" or "'),
        ('LogMessage("RaiseOverflowException");\n        LogMessage', "LogMessage"),
    ),
    *faults_in(
        "number/ops/random_number.hpp",
        ("RandomUInt32() & 0xFF", "RandomUInt32() & 0x7F"),
        ("value.SetOne();", "value.SetZero();"),
    ),
    *faults_in(
        "number/ops/error_code_functions.hpp",
        ("RaiseOverflowException(FailureName.text);", "RaiseOverflowException(\"Root\");"),
    ),
    *faults_in(
        "number/kernels/shift_words.hpp",
        ("i + WordShift::Count == count", "i + WordShift::Count > count"),
    ),
    *faults_in(
        "number/kernels/add.hpp",
        ("!remains.firstBit && remains.othersZero", "remains.othersZero"),
        ("return {.firstBit = (word >> (first % WordBits) & 1) != 0", "return {.firstBit = word != 0"),
    ),
    *faults_in(
        "number/kernels/column_sums.hpp",
        ("k - rightCount + 1;", "k - rightCount + 2;"),
    ),
    *faults_in(
        "number/kernels/divide.hpp",
        ("IsDecided(words_[Slack - 1], 2 * Unit)", "IsDecided(words_[Slack - 1], 0 * Unit)"),
        ("if (above != 0 ||", "if (above > 1 ||"),
        ("if (++words_[i] != 0)", "if (++words_[i] != 1)"),
    ),
    *faults_in(
        "number/kernels/limb_division.hpp",
        ("top + (~top != 0 ? 1 : 0)", "top + 1"),
        ("next = Pair::Add(next, Pair::ShiftRight<LimbBits>(columns[0]));", ""),
        ("Pair::Missing(sum, mask)", "Pair::And(sum, mask)"),
    ),
    *faults_in(
        "number/kernels/limbs.hpp",
        ("whole = bytes / PairBytes;", "whole = (bytes - 1) / PairBytes;"),
        ("Pair::ShiftRight<LimbBits>(Pair::Load(columns + 2 * pair + 1)));", "Vector{});"),
    ),
    *faults_in("number/kernels/growing_integer.hpp", ("words_ == W &&", "words_ == W + 1 &&")),
    *faults_in(
        "number/kernels/processors/x86/lanes_avx2.hpp",
        ("blend_epi32(vector, next, 0x03)", "blend_epi32(vector, next, 0x01)"),
    ),
    *faults_in(
        "number/kernels/processors/x86/pair.hpp",
        ("_mm_castsi128_pd(next), 1)", "_mm_castsi128_pd(next), 0)"),
    ),
    *faults_in(
        "number/kernels/mantissa_product.hpp",
        ("rest <= Rest - static_cast<Guard>(error)", "rest <= Rest"),
        ("return rest != 0 && ", "return "),
        ("IsDecided(Factor{*factors(Factors - 1)}, Factors)", "IsDecided(Factor{*factors(Factors - 1)}, Factors / 2)"),
    ),
    *faults_in(
        "number/kernels/multiply.hpp",
        ("WithoutLowZeros(product.lower(), W - 1)", "WithoutLowZeros(product.lower(), W - 2)"),
        ("std::bit_width(above)", "std::bit_width(above) / 2 * 2"),
    ),
    *faults_in(
        "number/kernels/power.hpp",
        ("powers % 2 != 0", "powers % 2 == 0"),
        ("PlainExponent(power) &&", "power.mantissa.IsTheHighestBitSet() &&"),
    ),
    *faults_in(
        "number/kernels/processors/x86/carry_chains.hpp",
        ('BIGNUMBER_CHAIN_LINK(OPERATION, "28")', ""),
    ),
    *faults_in(
        "number/kernels/scaled_words.hpp",
        ("number.mantissa.table[W - 1] = TopBit;", ""),
        ("Tail::Half && number.mantissa.IsTheLowestBitSet()", "Tail::Half"),
    ),
    *faults_in(
        "number/kernels/series.cpp",
        ("against != alternate", "against"),
        ("constexpr int wanted = 40;", "constexpr int wanted = 4;"),
    ),
    *faults_in(
        "number/kernels/series_tail_steps.hpp",
        ("top = begin_ + firstFactor_ + 1", "top = begin_ + firstFactor_ + 2"),
        ("limb >>= LimbBits;", "limb /= std::int64_t{1} << LimbBits;"),
        ("subtract_ ^= start_.alternate;", "subtract_ |= start_.alternate;"),
    ),
    *faults_in(
        "number/kernels/text.cpp",
        ("reader.GoTo(start);", ""),
        ("(count - 1) * static_cast<std::size_t>(block.digits)",
         "count * static_cast<std::size_t>(block.digits)"),
        ("logarithm = 1292913986", "logarithm = 1292013986"),
    ),
]
