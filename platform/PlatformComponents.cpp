#include <kornum/PlatformComponents.h>

#include <algorithm>

namespace Platform {

TComponent::TComponent(TComponent* AOwner) : owner_(AOwner) {
    if (owner_ != nullptr) owner_->components_.push_back(this);
}

TComponent::~TComponent() {
    // Free the owned components last-created first; each one unlinks itself.
    while (!components_.empty()) delete components_.back();
    if (owner_ != nullptr) std::erase(owner_->components_, this);
}

TComponent* TComponent::Components(std::int32_t Index) const {
    if (Index < 0 || Index >= ComponentCount())
        throw EStringListError("List index out of bounds (" + std::to_string(Index) + ")");
    return components_[std::size_t(Index)];
}

const TPropertyInfo* TComponent::FindProperty(std::string_view Name) const {
    for (const TPropertyInfo& property : PublishedProperties())
        if (property.Name == Name) return &property;
    return nullptr;
}

}  // namespace Platform
