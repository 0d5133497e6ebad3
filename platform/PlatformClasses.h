/// @file
/// Persistent objects (`Platform::TPersistent`, whose contents another object of a
/// compatible class can take with `Assign`) and string lists (`Platform::TStrings`,
/// `Platform::TStringList`).
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformExceptions.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

KORNUM_EXPORT_BEGIN
namespace Platform {

/// An object whose contents can be copied from another with `Assign`.
class TPersistent {
public:
    /// Virtual, so that a derived object is destroyed through a base pointer.
    virtual ~TPersistent() = default;

    /// Copies the contents of `Source`. The default accepts nothing and raises
    /// `Platform::EConvertError` ("Cannot assign a SOURCECLASS to a THISCLASS").
    virtual void Assign(const TPersistent& Source);

    /// The class name, as streaming and messages show it.
    virtual std::string_view ClassName() const { return "TPersistent"; }
};

/// Raised for an index outside a string list. Also raised by `TComponent::Components`;
/// the message is "List index out of bounds (INDEX)".
class EStringListError : public Exception {
public:
    /// An exception carrying `message`.
    using Exception::Exception;
};

/// An ordered list of text lines, indexed from 0. The abstract interface: storage is
/// up to the derived class (`TStringList` keeps the lines in memory).
class TStrings : public TPersistent {
public:
    /// The number of lines.
    virtual std::int32_t Count() const = 0;
    /// The line at Index (0-based); EStringListError for an index outside 0 to
    /// Count() - 1.
    virtual const std::string& operator[](std::int32_t Index) const = 0;
    /// Replaces the line at `Index`; `EStringListError` for an index outside 0 to
    /// Count() - 1.
    virtual void Put(std::int32_t Index, std::string S) = 0;
    /// Appends S and returns its index.
    virtual std::int32_t Add(std::string S) = 0;
    /// Inserts S before Index (Index = Count() appends); `EStringListError` outside
    /// 0 to Count().
    virtual void Insert(std::int32_t Index, std::string S) = 0;
    /// Removes the line at `Index`; `EStringListError` for an index outside 0 to
    /// Count() - 1.
    virtual void Delete(std::int32_t Index) = 0;
    /// Removes every line.
    virtual void Clear() = 0;

    /// The index of the first line equal to S, or -1.
    std::int32_t IndexOf(std::string_view S) const;
    /// Every line followed by a line end (`\n`); empty for an empty list.
    std::string Text() const;
    /// Replaces the lines by those of `S`, split at each line end (LF, CR LF or CR); a last
    /// line end does not start another line.
    void SetText(std::string_view S);

    /// Takes the lines of another string list (assigning a list to itself changes
    /// nothing). Any other source raises `Platform::EConvertError`, as
    /// `TPersistent::Assign` does.
    void Assign(const TPersistent& Source) override;
    /// `"TStrings"`.
    std::string_view ClassName() const override { return "TStrings"; }
};

/// A string list that keeps its lines in memory. Every index outside the list raises
/// `Platform::EStringListError` before anything changes.
class TStringList : public TStrings {
public:
    /// An empty list.
    TStringList() = default;
    /// A list holding `lines`, in order.
    TStringList(std::initializer_list<std::string> lines) : lines_(lines) {}

    /// The number of lines.
    std::int32_t Count() const override { return std::int32_t(lines_.size()); }
    /// The line at `Index`; `EStringListError` for an index outside 0 to
    /// Count() - 1.
    const std::string& operator[](std::int32_t Index) const override;
    /// Replaces the line at `Index`; `EStringListError` for an index outside 0 to
    /// Count() - 1.
    void Put(std::int32_t Index, std::string S) override;
    /// Appends `S` and returns its index.
    std::int32_t Add(std::string S) override;
    /// Inserts `S` before `Index` (`Index` = Count() appends); `EStringListError` outside
    /// 0 to Count().
    void Insert(std::int32_t Index, std::string S) override;
    /// Removes the line at `Index`; `EStringListError` for an index outside 0 to
    /// Count() - 1.
    void Delete(std::int32_t Index) override;
    /// Removes every line.
    void Clear() override { lines_.clear(); }

    /// `"TStringList"`.
    std::string_view ClassName() const override { return "TStringList"; }

private:
    std::vector<std::string> lines_;

    void CheckIndex(std::int32_t Index, std::int32_t last) const;
};

}  // namespace Platform
KORNUM_EXPORT_END
