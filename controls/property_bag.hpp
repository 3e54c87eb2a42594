#pragma once

#include "controls/colour.hpp"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

namespace lexigrove
{

/// A control's font. The front end resolves the name; an empty one means the desktop's own font.
struct ControlFont {
    std::string name;
    double size = 8; ///< points
    bool bold = false;

    bool operator==(const ControlFont&) const = default;
};

/// A picture that a control shows. A front end derives its own class, which holds the pixels.
class ControlPicture
{
public:
    ControlPicture(int width, int height) : width_(width), height_(height) {}
    virtual ~ControlPicture() = default;
    ControlPicture(const ControlPicture&) = delete;
    ControlPicture& operator=(const ControlPicture&) = delete;

    /// The natural size in hundredths of a millimetre.
    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }

private:
    int width_;
    int height_;
};

using PicturePtr = std::shared_ptr<const ControlPicture>;

/// One saved property.
using PropertyValue = std::variant<bool, std::int16_t, Colour, double, std::string, ControlFont, PicturePtr>;

/// The saved properties of one control by their exact names. A value equal to the default passed to `write` is not
/// kept.
class PropertyBag
{
public:
    template <typename T>
    void write(const std::string& name, const T& value, const T& defaultValue)
    {
        if (value == defaultValue)
            values.erase(name);
        else
            values.insert_or_assign(name, PropertyValue(std::in_place_type<T>, value));
    }

    /// The saved value, or the default if none was saved or it has another type.
    template <typename T>
    [[nodiscard]] T read(const std::string& name, const T& defaultValue) const
    {
        const auto found = values.find(name);
        if (found == values.end())
            return defaultValue;
        const T* value = std::get_if<T>(&found->second);
        return value != nullptr ? *value : defaultValue;
    }

    std::map<std::string, PropertyValue> values;
};

// What a control shows its properties to, one by one, to have them saved or restored.

struct PropertyWriter {
    PropertyBag& bag;

    template <typename T>
    void operator()(const char* name, const T& value, const std::type_identity_t<T>& defaultValue)
    {
        bag.write(name, value, defaultValue);
    }
};

struct PropertyReader {
    const PropertyBag& bag;

    template <typename T>
    void operator()(const char* name, T& value, const std::type_identity_t<T>& defaultValue)
    {
        value = bag.read(name, defaultValue);
    }
};

} // namespace lexigrove
