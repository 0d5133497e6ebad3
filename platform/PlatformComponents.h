/// @file
/// Components: objects with an owner that frees them, a name, a loading state, and a
/// table of published properties that streaming (`Platform::WriteComponentText`,
/// `Platform::ReadComponentText`) and inspection read.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformClasses.h>

#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

KORNUM_EXPORT_BEGIN
namespace Platform {

class TComponent;

/// The kinds of published property values, each held by one alternative of
/// `TPropertyValue`.
enum class TPropertyType {
    Integer,  ///< A whole number, held as `std::int64_t` (enumerations included).
    Float,    ///< A floating value, held as `long double`.
    Boolean,  ///< `true` or `false`, held as `bool`.
    Text,     ///< A text, held as `std::string` (colours and fonts in their text forms).
    Strings   ///< A list of texts, held as `std::vector<std::string>`.
};

/// The value of a published property: the alternative that its `TPropertyType` names.
using TPropertyValue =
    std::variant<std::int64_t, long double, bool, std::string, std::vector<std::string>>;

/// One published property. Get reads it; Set is what reading a stream does with it (for
/// a Strings property: fill the component's own list in place). A stored property is
/// written by streaming when its value differs from Default; the others only show in
/// inspection.
struct TPropertyInfo {
    /// The property's name, as the text form and inspection show it.
    std::string Name;
    /// The kind of value, and so the alternative of `TPropertyValue` that Get returns
    /// and Set receives.
    TPropertyType Type;
    /// Whether streaming writes and reads the property.
    bool Stored;
    /// The value a new component has; streaming writes only values that differ.
    TPropertyValue Default;
    /// Reads the property of a component.
    TPropertyValue (*Get)(const TComponent&);
    /// Sets the property of a component, as reading a stream does.
    void (*Set)(TComponent&, const TPropertyValue&);
};

/// The base of every component: an owner that frees it, the components it owns, a name,
/// a loading state while a stream is read into it, and its published properties. Not
/// copyable.
class TComponent : public TPersistent {
public:
    /// AOwner (may be null) takes ownership: it frees this component when it is freed.
    explicit TComponent(TComponent* AOwner);
    /// Frees the owned components, the last created first, and leaves the owner's list.
    ~TComponent() override;
    /// Not copyable: a component has one owner.
    TComponent(const TComponent&) = delete;
    /// Not assignable: a component has one owner.
    TComponent& operator=(const TComponent&) = delete;

    /// The owner given at construction, or nullptr.
    TComponent* Owner() const noexcept { return owner_; }
    /// The number of components this one owns.
    std::int32_t ComponentCount() const noexcept { return std::int32_t(components_.size()); }
    /// The owned component at `Index`, in the order of creation. An index outside
    /// 0 to ComponentCount() - 1 raises `Platform::EStringListError`.
    TComponent* Components(std::int32_t Index) const;

    /// The component's name; empty until set.
    const std::string& Name() const noexcept { return name_; }
    /// Sets the component's name.
    void SetName(std::string Name) { name_ = std::move(Name); }

    /// True while a stream is being read into the component, until Loaded.
    bool Loading() const noexcept { return loading_; }

    /// The published properties, in the order of publication; none for a plain component.
    virtual std::span<const TPropertyInfo> PublishedProperties() const { return {}; }
    /// The published property of that name, or nullptr.
    const TPropertyInfo* FindProperty(std::string_view Name) const;

    /// `"TComponent"`.
    std::string_view ClassName() const override { return "TComponent"; }

    /// Marks the start of reading a stream; Loaded marks its end.
    void BeginLoading() noexcept { loading_ = true; }
    /// Called after all properties have been read from a stream; clears the loading
    /// state. Components override it to finish their set-up, calling this first.
    virtual void Loaded() { loading_ = false; }

private:
    TComponent* owner_;
    std::vector<TComponent*> components_;
    std::string name_;
    bool loading_ = false;
};

}  // namespace Platform
KORNUM_EXPORT_END
