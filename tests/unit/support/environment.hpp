// One variable of the process's environment, for the length of a scope.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

namespace tests {

/// Sets a variable, or removes it when there is no value, and removes it at the end.
class EnvironmentVariable {
public:
    EnvironmentVariable(std::string name, const std::optional<std::string>& value)
        : name_(std::move(name)) {
        if (value) {
            Set(*value);
        } else {
            Remove();
        }
    }
    ~EnvironmentVariable() { Remove(); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
#if defined(_WIN32)
    // An empty value cannot be set there: it removes the variable.
    void Set(const std::string& value) {
        _putenv((name_ + "=" + value).c_str());
    }
    void Remove() {
        _putenv((name_ + "=").c_str());
    }
#else
    void Set(const std::string& value) {
        setenv(name_.c_str(), value.c_str(), 1);
    }
    void Remove() {
        unsetenv(name_.c_str());
    }
#endif

    std::string name_;
};

}  // namespace tests
