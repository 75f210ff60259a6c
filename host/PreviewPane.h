// The preview area of the Print dialog. Opens and draws the document on a
// thread of its own, so the dialog never waits for it: the newest request
// wins and older results are dropped. Shows a clear message instead of pages
// when the document cannot be printed.
#pragma once

#include "host/DocumentSource.h"
#include "host/PreviewRenderer.h"

#include <QThread>
#include <QWidget>

#include <atomic>
#include <memory>

class QLabel;
class QToolButton;

namespace orvan {

class PreviewPane : public QWidget
{
    Q_OBJECT
public:
    explicit PreviewPane(QWidget* parent = nullptr);
    ~PreviewPane() override;

    // Opens the document (nothing to show for an empty path).
    void setDocument(const QString& path);
    // Redraws with new settings, staying on the current spread when it exists.
    void setSettings(const PreviewSettings& settings);

    // The document's problem once it has been opened (None before).
    DocumentProblem problem() const { return m_problem; }
    QString problemText() const { return m_problemText; }
    int spreadCount() const { return m_spreadCount; }
    int currentSpread() const { return m_spread; }
    bool isShowingPages() const;

signals:
    // The document was opened (or found unprintable).
    void documentChecked(DocumentProblem problem, const QString& message);
    // A spread is on screen.
    void spreadShown(int index, int count);

private:
    struct Worker;
    void request();
    void showSpread(int delta);
    void receive(quint64 id, DocumentProblem problem, const QString& message, int count, int spread,
                 const QImage& image);

    QThread m_thread;
    std::unique_ptr<Worker> m_worker;
    std::atomic<quint64> m_latest{0};
    QString m_path;
    bool m_reopen = false;
    PreviewSettings m_settings;
    DocumentProblem m_problem = DocumentProblem::None;
    QString m_problemText;
    int m_spread = 0;
    int m_spreadCount = 0;
    QLabel* m_image;
    QLabel* m_message;
    QToolButton* m_previous;
    QToolButton* m_next;
    QLabel* m_position;
};

} // namespace orvan
