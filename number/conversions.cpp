#include "number/conversions.hpp"

namespace vqz {

VariantContent VariantContentOf(std::int32_t type) {
    using host_interface::VariantTypeCode;
    if (type == VariantTypeUInt32) {
        return VariantContent::UnsignedInt32;
    }
    if (type == VariantTypeUInt64) {
        return VariantContent::UnsignedInt64;
    }
    switch (static_cast<VariantTypeCode>(type)) {
        case VariantTypeCode::Nil:
            return VariantContent::Nothing;
        case VariantTypeCode::Int32:
        case VariantTypeCode::Boolean:
            return VariantContent::SignedInt32;
        case VariantTypeCode::Int64:
            return VariantContent::SignedInt64;
        case VariantTypeCode::Color:
            return VariantContent::UnsignedInt32;
        case VariantTypeCode::Single:
            return VariantContent::Single;
        case VariantTypeCode::Double:
            return VariantContent::Double;
        case VariantTypeCode::Currency:
            return VariantContent::Currency;
        case VariantTypeCode::Date:
            return VariantContent::Date;
        case VariantTypeCode::DateTime:
            return VariantContent::DateTime;
        case VariantTypeCode::String:
        case VariantTypeCode::CString:
        case VariantTypeCode::WString:
        case VariantTypeCode::PString:
        case VariantTypeCode::CFString:
        case VariantTypeCode::OSType:
        case VariantTypeCode::Text:
            return VariantContent::Text;
        case VariantTypeCode::Object:
            return VariantContent::NumberOrOther;
        default:
            return VariantContent::Unsupported;
    }
}

void RaiseConversionNotSupported() {
    RaiseHostException("UnsupportedOperationException", "Conversion not supported.");
}

}  // namespace vqz
