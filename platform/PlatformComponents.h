// Components: objects with an owner that frees them, a name, a loading state, and a
// table of published properties that streaming and inspection read.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformClasses.h>

#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace KORNUM_API Platform {

class TComponent;

// The kinds of published property values.
enum class TPropertyType { Integer, Float, Boolean, Text, Strings };

using TPropertyValue =
    std::variant<std::int64_t, long double, bool, std::string, std::vector<std::string>>;

// One published property. Get reads it; Set is what reading a stream does with it (for
// a Strings property: fill the component's own list in place). A stored property is
// written by streaming when its value differs from Default; the others only show in
// inspection.
struct TPropertyInfo {
    std::string Name;
    TPropertyType Type;
    bool Stored;
    TPropertyValue Default;
    TPropertyValue (*Get)(const TComponent&);
    void (*Set)(TComponent&, const TPropertyValue&);
};

class TComponent : public TPersistent {
public:
    // AOwner (may be null) takes ownership: it frees this component when it is freed.
    explicit TComponent(TComponent* AOwner);
    ~TComponent() override;
    TComponent(const TComponent&) = delete;
    TComponent& operator=(const TComponent&) = delete;

    TComponent* Owner() const noexcept { return owner_; }
    std::int32_t ComponentCount() const noexcept { return std::int32_t(components_.size()); }
    TComponent* Components(std::int32_t Index) const;

    const std::string& Name() const noexcept { return name_; }
    void SetName(std::string Name) { name_ = std::move(Name); }

    // True while a stream is being read into the component, until Loaded.
    bool Loading() const noexcept { return loading_; }

    // The published properties, in the order of publication.
    virtual std::span<const TPropertyInfo> PublishedProperties() const { return {}; }
    // The property of that name, or nullptr.
    const TPropertyInfo* FindProperty(std::string_view Name) const;

    std::string_view ClassName() const override { return "TComponent"; }

    // Marks the start of reading a stream; Loaded marks its end.
    void BeginLoading() noexcept { loading_ = true; }
    // Called after all properties have been read from a stream; clears the loading
    // state. Components override it to finish their set-up, calling this first.
    virtual void Loaded() { loading_ = false; }

private:
    TComponent* owner_;
    std::vector<TComponent*> components_;
    std::string name_;
    bool loading_ = false;
};

}  // namespace Platform
