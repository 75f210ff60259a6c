// Booklet folding follows the printer's booklet maker: the sample printer's
// PPD with each choice of its installable option, read through the plug-in's
// own feature table.
#include "paperoutput/BookletCreation.h"
#include "paperoutput/PaperOutputModel.h"
#include "paperoutput/tests/PaperOutputTestSupport.h"

namespace orvan {
namespace {

using testing::PluginBundle;

TEST(BookletFold, OnlyABookletMakerOffersTheFoldRadiosAndKeepsTheFold)
{
    const struct
    {
        const char* bookletMaker;
        bool folds;
    } rows[] = {{"None", false}, {"BiFoldMultiple", true}, {"BiFoldStapleMultiple", true}};
    QFile sample(testing::kSamplePpd);
    ASSERT_TRUE(sample.open(QIODevice::ReadOnly));
    const QByteArray sampleText = sample.readAll();
    const QByteArray defaultLine = "*DefaultBookletFinishingOptions: None";
    ASSERT_TRUE(sampleText.contains(defaultLine));
    for (const auto& row : rows) {
        QTemporaryDir folder;
        QFile copy(folder.filePath(QStringLiteral("printer.ppd")));
        ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
        copy.write(QByteArray(sampleText)
                       .replace(defaultLine, "*DefaultBookletFinishingOptions: " +
                                                 QByteArray(row.bookletMaker)));
        copy.close();
        QString error;
        const PpdFilePtr ppd = OpenPPDFile(copy.fileName(), &error);
        ASSERT_TRUE(ppd) << error.toStdString();
        UnloadInstallableOptions();
        LoadInstallableOptions(ppd.get(), _InstalledFeatures);
        PaperOutputModel model;
        model.load(&PluginBundle(), ppd.get());
        model.record().fold = kBookletFold; // say, from a ticket made for another printer

        EXPECT_EQ(model.bookletFoldEnabled(), row.folds) << row.bookletMaker;
        for (int radio = 0; radio < 3; ++radio)
            EXPECT_EQ(FoldRadioEnabled(radio, model.bookletFoldEnabled()), radio == 0 || row.folds)
                << row.bookletMaker << " radio " << radio;
        // The dialog opens with these values and returns them on OK, with the
        // fold and staple radio clicked where it can be.
        BookletCreationParams chosen = model.bookletCreationParams();
        EXPECT_EQ(chosen.fold, row.folds ? kBookletFold : kFinishingNone) << row.bookletMaker;
        if (FoldRadioEnabled(FoldRadioIndex(kBookletFoldStaple), model.bookletFoldEnabled()))
            chosen.fold = kBookletFoldStaple;
        model.applyBookletCreation(chosen);
        EXPECT_EQ(model.record().fold, row.folds ? kBookletFoldStaple : kFinishingNone)
            << row.bookletMaker;
        EXPECT_EQ(model.record().finishingOption,
                  row.folds ? kFinishingOptionBookletFold : kFinishingOptionNone)
            << row.bookletMaker;
    }
    UnloadInstallableOptions();
}

} // namespace
} // namespace orvan
