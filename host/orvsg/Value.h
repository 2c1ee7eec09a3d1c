#pragma once

#include "host/orvsg/IValue.h"

#include <string>

namespace orvsg
{

/// A named setting of type T. Kind tells the settings dialogs how to show it: 0 a switch, 3 a choice.
template <class T, int Kind>
class Value final : public IValue
{
public:
    Value(wchar_t const* name, T initial) : key(name), value(initial) {}

    std::wstring const& name() const override { return key; }
    T get() const { return value; }
    void set(T newValue) { value = newValue; }

private:
    std::wstring key;
    T value;
};

} // namespace orvsg
