#include "EditDocument.h"

#include "cli/Input.h"
#include "cli/Output.h"

#include <kornum/KornumCanvas.h>
#include <kornum/PlatformExceptions.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>

namespace KornumEdit {

using Kornumglobals::Integer;

EditDocument::EditDocument(std::string path) : path_(std::move(path)) {
    KornumCli::ReadOptions options;
    options.allowNonFinite = true;  // a null value is saved as nan
    Kornumglobals::TKorFloatMatrix m = KornumCli::ReadMatrix(KornumCli::ReadSource(path_), path_, options);
    if (m.Length() > 0 && m[0].Length() == 1) {
        Kornumglobals::TKorFloatVector v;
        v.SetLength(m.Length());
        for (Integer i = 0; i < m.Length(); ++i) v[i] = m[i][0];
        auto edit = std::make_unique<KornumVectorEdit::TKorVectorEdit>(nullptr);
        edit->SetVector(v);
        vector_ = edit.get();
        grid_ = std::move(edit);
    } else {
        auto edit = std::make_unique<KornumMatrixEdit::TKorMatrixEdit>(nullptr);
        edit->SetMatrix(m);
        matrix_ = edit.get();
        grid_ = std::move(edit);
    }
}

std::string EditDocument::Text() const {
    std::string text;
    if (vector_) {
        for (Kornumglobals::Float x : vector_->Vector()) text += KornumCli::NumberText(x) + "\n";
        return text;
    }
    const Kornumglobals::TKorFloatMatrix& m = matrix_->Matrix();
    for (Integer i = 0; i < matrix_->RowCount(); ++i) {
        for (Integer j = 0; j < matrix_->ColCount(); ++j) {
            if (j > 0) text += '\t';
            text += KornumCli::NumberText(m[i][j]);
        }
        text += "\n";
    }
    return text;
}

void EditDocument::Save() const {
    // Written beside the file and renamed over it, so that a failure leaves the old file.
    const std::string temporary = path_ + ".kornum-edit~";
    const std::string text = Text();
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        out << text;
        out.close();
        if (!out) {
            const int error = errno;
            std::remove(temporary.c_str());
            throw std::runtime_error("cannot write '" + path_ + "': " + std::strerror(error));
        }
    }
    if (std::rename(temporary.c_str(), path_.c_str()) != 0) {
        const int error = errno;
        std::remove(temporary.c_str());
        throw std::runtime_error("cannot write '" + path_ + "': " + std::strerror(error));
    }
}

void EditDocument::Render(const std::string& out) const {
    const std::optional<KornumCanvas::TImageFormat> format = KornumCanvas::FormatOfPath(out);
    if (!format) throw Platform::Exception("'" + out + "' does not end in .png, .svg or .pdf");
    // Room for the row titles, up to six columns and up to fifteen rows.
    const Integer rows = matrix_ ? matrix_->RowCount() : vector_->Count(), cols = matrix_ ? matrix_->ColCount() : 1;
    const Integer width = 64 + std::clamp<Integer>(cols, 1, 6) * grid_->ColWidth();
    const Integer height = (1 + std::clamp<Integer>(rows, 1, 15)) * grid_->RowHeight();
    KornumCanvas::TKorImageCanvas canvas(*format, width, height, Platform::clWhite);
    canvas.SetTextEncoding(Platform::TTextEncoding::Utf8);
    grid_->SetBounds(0, 0, width, height);
    grid_->Paint(canvas);
    canvas.SaveToFile(out);
}

}  // namespace KornumEdit
