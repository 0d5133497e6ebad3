// Persistent objects and string lists.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformExceptions.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace KORNUM_API Platform {

// An object whose contents can be copied from another with Assign.
class TPersistent {
public:
    virtual ~TPersistent() = default;

    // Copies the contents of Source. The default accepts nothing and raises
    // EConvertError naming both classes.
    virtual void Assign(const TPersistent& Source);

    // The class name, as streaming and messages show it.
    virtual std::string_view ClassName() const { return "TPersistent"; }
};

// Raised for an index outside a string list.
class EStringListError : public Exception {
public:
    using Exception::Exception;
};

// An ordered list of text lines.
class TStrings : public TPersistent {
public:
    virtual std::int32_t Count() const = 0;
    // The line at Index (0-based); EStringListError outside 0 .. Count() - 1.
    virtual const std::string& operator[](std::int32_t Index) const = 0;
    virtual void Put(std::int32_t Index, std::string S) = 0;
    // Appends S and returns its index.
    virtual std::int32_t Add(std::string S) = 0;
    // Inserts S before Index (Index = Count() appends).
    virtual void Insert(std::int32_t Index, std::string S) = 0;
    virtual void Delete(std::int32_t Index) = 0;
    virtual void Clear() = 0;

    // The index of the first line equal to S, or -1.
    std::int32_t IndexOf(std::string_view S) const;
    // Every line followed by a line end ("\n").
    std::string Text() const;
    // Replaces the lines by those of S, split at "\n", "\r\n" or "\r"; a last line end
    // does not start another line.
    void SetText(std::string_view S);

    // Takes the lines of another string list.
    void Assign(const TPersistent& Source) override;
    std::string_view ClassName() const override { return "TStrings"; }
};

// A string list that keeps its lines in memory.
class TStringList : public TStrings {
public:
    TStringList() = default;
    TStringList(std::initializer_list<std::string> lines) : lines_(lines) {}

    std::int32_t Count() const override { return std::int32_t(lines_.size()); }
    const std::string& operator[](std::int32_t Index) const override;
    void Put(std::int32_t Index, std::string S) override;
    std::int32_t Add(std::string S) override;
    void Insert(std::int32_t Index, std::string S) override;
    void Delete(std::int32_t Index) override;
    void Clear() override { lines_.clear(); }

    std::string_view ClassName() const override { return "TStringList"; }

private:
    std::vector<std::string> lines_;

    void CheckIndex(std::int32_t Index, std::int32_t last) const;
};

}  // namespace Platform
