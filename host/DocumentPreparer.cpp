#include "host/DocumentPreparer.h"

#include "host/SheetLayout.h"

#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <memory>

namespace orvan {

namespace {

PreparationResult failure(DocumentProblem problem, const QString& detail = {})
{
    return {problem, detail};
}

// Opens a PDF into `pdf`; the problem when it needs a password, cannot be
// read or has no pages. qpdf reports through exceptions; none leaves here.
PreparationResult openPdf(QPDF& pdf, const QString& path)
{
    try {
        pdf.setSuppressWarnings(true);
        pdf.processFile(QFile::encodeName(path).constData());
        if (QPDFPageDocumentHelper(pdf).getAllPages().empty())
            return failure(DocumentProblem::NoPages);
    } catch (const QPDFExc& e) {
        if (e.getErrorCode() == qpdf_e_password)
            return failure(DocumentProblem::PasswordProtected);
        return failure(DocumentProblem::Unreadable, QString::fromStdString(e.getMessageDetail()));
    } catch (const std::exception& e) {
        return failure(DocumentProblem::Unreadable, QString::fromUtf8(e.what()));
    }
    return {};
}

// A dictionary entry of `holder` that this page may change alone.
QPDFObjectHandle ownDictionary(QPDFObjectHandle holder, const std::string& key)
{
    QPDFObjectHandle entry = holder.hasKey(key) && holder.getKey(key).isDictionary()
                                 ? holder.getKey(key).shallowCopy()
                                 : QPDFObjectHandle::newDictionary();
    holder.replaceKey(key, entry);
    return entry;
}

void stampPage(QPDF& pdf, QPDFPageObjectHelper page, QPDFObjectHandle form, WatermarkLayer layer)
{
    QPDFObjectHandle resources = page.getAttribute("/Resources", true);
    resources =
        resources.isDictionary() ? resources.shallowCopy() : QPDFObjectHandle::newDictionary();
    page.getObjectHandle().replaceKey("/Resources", resources);
    QPDFObjectHandle xobjects = ownDictionary(resources, "/XObject");
    int suffix = 0;
    const std::string name = resources.getUniqueResourceName("/OrvanWm", suffix);
    xobjects.replaceKey(name, form);
    std::string content = page.placeFormXObject(form, name, page.getTrimBox().getArrayAsRectangle(),
                                                true, true, true);
    if (layer == WatermarkLayer::Blend) {
        QPDFObjectHandle states = ownDictionary(resources, "/ExtGState");
        const std::string state = resources.getUniqueResourceName("/OrvanWmGS", suffix);
        QPDFObjectHandle multiply = QPDFObjectHandle::newDictionary();
        multiply.replaceKey("/Type", QPDFObjectHandle::newName("/ExtGState"));
        multiply.replaceKey("/BM", QPDFObjectHandle::newName("/Multiply"));
        states.replaceKey(state, multiply);
        content = "q " + state + " gs\n" + content + "Q\n";
    }
    if (layer == WatermarkLayer::Background) {
        page.addPageContents(QPDFObjectHandle::newStream(&pdf, content), true);
    } else {
        // The page's own content may leave the graphics state changed.
        page.addPageContents(QPDFObjectHandle::newStream(&pdf, "q\n"), true);
        page.addPageContents(QPDFObjectHandle::newStream(&pdf, "\nQ\n" + content), false);
    }
}

// The box a form covers in its parent's space: its bounding box through its matrix.
QPDFObjectHandle::Rectangle formBox(QPDFObjectHandle form)
{
    QPDFObjectHandle dictionary = form.getDict();
    const QPDFObjectHandle::Rectangle box = dictionary.getKey("/BBox").getArrayAsRectangle();
    if (!dictionary.getKey("/Matrix").isArray())
        return box;
    return QPDFMatrix(dictionary.getKey("/Matrix").getArrayAsMatrix()).transformRectangle(box);
}

// The content that draws `name` (covering `box`) into the placement on a
// sheet of height `sheetHeight`; sheets run top-down, PDF bottom-up.
std::string placementContent(const PagePlacement& placement, const QPDFObjectHandle::Rectangle& box,
                             double sheetHeight, const std::string& name)
{
    const double s = placement.scale;
    const double x0 = placement.target.left();
    const double y0 = sheetHeight - placement.target.bottom();
    const QPDFMatrix matrix = placement.quarterTurn
                                  ? QPDFMatrix(0, s, -s, 0, x0 + s * box.ury, y0 - s * box.llx)
                                  : QPDFMatrix(s, 0, 0, s, x0 - s * box.llx, y0 - s * box.lly);
    return "q " + matrix.unparse() + " cm " + name + " Do Q\n";
}

void layOutSheets(QPDF& pdf, const PageSetup& setup, const std::vector<int>& selected)
{
    QPDFPageDocumentHelper document(pdf);
    const std::vector<QPDFPageObjectHelper> pages = document.getAllPages();
    std::vector<QPDFObjectHandle> forms;
    std::vector<QPDFObjectHandle::Rectangle> boxes;
    for (QPDFPageObjectHelper page : pages) {
        forms.push_back(pdf.makeIndirectObject(page.getFormXObjectForPage(true)));
        boxes.push_back(formBox(forms.back()));
    }
    const auto sizeOf = [&](int page) {
        const auto& box = boxes[static_cast<std::size_t>(page)];
        return QSizeF(box.urx - box.llx, box.ury - box.lly);
    };
    const QSizeF sheet = setup.sheetSize();
    for (const auto& placements : LayOutSheets(selected, setup, sizeOf)) {
        QPDFObjectHandle xobjects = QPDFObjectHandle::newDictionary();
        std::string content;
        for (std::size_t i = 0; i < placements.size(); ++i) {
            const std::string name = "/OrvanPage" + std::to_string(i + 1);
            const auto page = static_cast<std::size_t>(placements[i].page);
            xobjects.replaceKey(name, forms[page]);
            content += placementContent(placements[i], boxes[page], sheet.height(), name);
        }
        QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
        resources.replaceKey("/XObject", xobjects);
        QPDFObjectHandle dictionary = QPDFObjectHandle::newDictionary();
        dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
        dictionary.replaceKey("/MediaBox", QPDFObjectHandle::newArray(QPDFObjectHandle::Rectangle(
                                               0, 0, sheet.width(), sheet.height())));
        dictionary.replaceKey("/Resources", resources);
        dictionary.replaceKey("/Contents", QPDFObjectHandle::newStream(&pdf, content));
        document.addPage(QPDFPageObjectHelper(pdf.makeIndirectObject(dictionary)), false);
    }
    for (QPDFPageObjectHelper page : pages)
        document.removePage(page);
}

PreparationResult writePdf(QPDF& pdf, const QString& outputPath)
{
    QPDFWriter writer(pdf);
    writer.setOutputMemory();
    writer.setPreserveEncryption(false);
    writer.write();
    std::unique_ptr<Buffer> bytes(writer.getBuffer());
    QSaveFile file(outputPath);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(bytes->getBuffer()),
                   static_cast<qint64>(bytes->getSize())) !=
            static_cast<qint64>(bytes->getSize()) ||
        !file.commit())
        return failure(DocumentProblem::OutputFailed, file.errorString());
    return {};
}

PreparationResult preparePdf(const QString& pdfPath, const DocumentPreparation& preparation,
                             const QString& outputPath)
{
    QPDF pdf;
    if (PreparationResult opened = openPdf(pdf, pdfPath); !opened.ok())
        return opened;
    QPDF watermarkPdf; // its objects are copied when the output is written
    try {
        std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(pdf).getAllPages();
        const std::vector<int> selected = SelectedPages(
            static_cast<int>(pages.size()), preparation.firstPage, preparation.lastPage);
        if (selected.empty())
            return failure(DocumentProblem::NoPages);
        if (preparation.watermark && !preparation.watermark->pdf.isEmpty()) {
            const QByteArray& bytes = preparation.watermark->pdf;
            watermarkPdf.setSuppressWarnings(true);
            watermarkPdf.processMemoryFile("watermark", bytes.constData(),
                                           static_cast<size_t>(bytes.size()));
            std::vector<QPDFPageObjectHelper> stamp =
                QPDFPageDocumentHelper(watermarkPdf).getAllPages();
            if (!stamp.empty()) {
                QPDFObjectHandle form = pdf.copyForeignObject(
                    watermarkPdf.makeIndirectObject(stamp.front().getFormXObjectForPage()));
                const std::size_t count =
                    preparation.watermark->firstPageOnly ? 1 : selected.size();
                for (std::size_t i = 0; i < count; ++i)
                    stampPage(pdf, pages[static_cast<std::size_t>(selected[i])], form,
                              preparation.watermark->layer);
            }
        }
        if (preparation.sheets)
            layOutSheets(pdf, *preparation.sheets, selected);
        return writePdf(pdf, outputPath);
    } catch (const std::exception& e) {
        return failure(DocumentProblem::Unreadable, QString::fromUtf8(e.what()));
    }
}

} // namespace

PreparationResult CheckPdf(const QString& pdfPath, int* pageCount)
{
    QPDF pdf;
    PreparationResult result = openPdf(pdf, pdfPath);
    if (result.ok() && pageCount)
        *pageCount = static_cast<int>(QPDFPageDocumentHelper(pdf).getAllPages().size());
    return result;
}

DocumentProblem CheckDocument(const QString& path, QString* message)
{
    PreparationResult result;
    switch (SniffDocumentKind(path)) {
    case DocumentKind::Pdf:
        result = CheckPdf(path);
        break;
    case DocumentKind::PostScript:
        break;
    case DocumentKind::Unsupported:
        result.problem = DocumentProblem::Unsupported;
        break;
    }
    if (message)
        *message = DocumentProblemText(result.problem, path, result.detail);
    return result.problem;
}

PreparationResult PrepareDocument(const QString& inputPath, const DocumentPreparation& preparation,
                                  const QString& outputPath)
{
    switch (SniffDocumentKind(inputPath)) {
    case DocumentKind::Pdf:
        return preparePdf(inputPath, preparation, outputPath);
    case DocumentKind::PostScript: {
        QTemporaryDir folder;
        const QString converted = folder.filePath(QStringLiteral("converted.pdf"));
        QString why;
        if (!folder.isValid() || !ConvertPostScriptToPdf(inputPath, converted, &why))
            return failure(DocumentProblem::ConversionFailed, why);
        return preparePdf(converted, preparation, outputPath);
    }
    case DocumentKind::Unsupported:
        return failure(DocumentProblem::Unsupported);
    }
    return failure(DocumentProblem::Unsupported);
}

} // namespace orvan
