// The document of kornum-edit: a vector or matrix file read with the command-line
// program's reader, bound to the edit control that suits it, saved and rendered.
#pragma once

#include <kornum/KornumGridEdit.h>
#include <kornum/KornumMatrixEdit.h>
#include <kornum/KornumVectorEdit.h>

#include <memory>
#include <string>

namespace KornumEdit {

class EditDocument {
public:
    // Reads the file at Path: one number a line is a vector, rows of several numbers a
    // matrix (null values written as "nan"). Bad input raises KornumCli::InputError
    // naming the file, line, field and text.
    explicit EditDocument(std::string path);

    const std::string& Path() const noexcept { return path_; }
    KornumGridEdit::TKorCustomGridEdit& Grid() const noexcept { return *grid_; }
    // The matrix edit, or null for a vector.
    KornumMatrixEdit::TKorMatrixEdit* MatrixEdit() const noexcept { return matrix_; }

    // The values as the file holds them: a row a line, tab-separated, each in the shortest
    // text that reads back as the same Float.
    std::string Text() const;
    // Replaces the file with Text(), whole or not at all; raises std::runtime_error with
    // the system's reason.
    void Save() const;
    // Draws the grid into an image (PNG, SVG or PDF, by Out's extension) just large
    // enough for the first rows and columns; raises Platform::Exception on failure.
    void Render(const std::string& out) const;

private:
    std::string path_;
    std::unique_ptr<KornumGridEdit::TKorCustomGridEdit> grid_;
    KornumMatrixEdit::TKorMatrixEdit* matrix_ = nullptr;
    KornumVectorEdit::TKorVectorEdit* vector_ = nullptr;
};

}  // namespace KornumEdit
