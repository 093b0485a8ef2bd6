// Whether the compiler builds with its address sanitizer.
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#define STANDIN_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#define STANDIN_ADDRESS_SANITIZER __has_feature(address_sanitizer)
#else
#define STANDIN_ADDRESS_SANITIZER 0
#endif
