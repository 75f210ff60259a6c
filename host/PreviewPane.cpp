#include "host/PreviewPane.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvan {

namespace {

constexpr int kPreviewWidth = 300;
constexpr int kPreviewHeight = 300;

} // namespace

// Lives on the pane's thread; owns the renderer and with it the document.
struct PreviewPane::Worker : QObject
{
    PreviewRenderer renderer;
    QString openPath;
    DocumentProblem problem = DocumentProblem::None;
    QString message;
};

PreviewPane::PreviewPane(QWidget* parent)
    : QWidget(parent), m_worker(std::make_unique<Worker>()), m_image(new QLabel(this)),
      m_message(new QLabel(this)), m_previous(new QToolButton(this)), m_next(new QToolButton(this)),
      m_position(new QLabel(this))
{
    setObjectName(QStringLiteral("PreviewPane"));
    m_image->setObjectName(QStringLiteral("PreviewImage"));
    m_message->setObjectName(QStringLiteral("PreviewMessage"));
    m_previous->setObjectName(QStringLiteral("PreviousSheetButton"));
    m_next->setObjectName(QStringLiteral("NextSheetButton"));
    m_position->setObjectName(QStringLiteral("SheetPositionLabel"));
    m_image->setAlignment(Qt::AlignCenter);
    m_image->setFixedSize(kPreviewWidth, kPreviewHeight);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setWordWrap(true);
    m_message->setFixedSize(kPreviewWidth, kPreviewHeight);
    m_message->setFrameShape(QFrame::StyledPanel);
    m_message->setMargin(16);
    // Until a document arrives the pane says why it is empty.
    m_image->hide();
    m_message->setText(tr("No document to preview"));
    m_previous->setArrowType(Qt::LeftArrow);
    m_next->setArrowType(Qt::RightArrow);
    m_previous->setToolTip(tr("Previous sheet"));
    m_next->setToolTip(tr("Next sheet"));
    m_position->setAlignment(Qt::AlignCenter);
    connect(m_previous, &QToolButton::clicked, this, [this] { showSpread(-1); });
    connect(m_next, &QToolButton::clicked, this, [this] { showSpread(1); });

    auto* navigation = new QHBoxLayout;
    navigation->addStretch(1);
    navigation->addWidget(m_previous);
    navigation->addWidget(m_position);
    navigation->addWidget(m_next);
    navigation->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_image);
    layout->addWidget(m_message);
    layout->addLayout(navigation);
    layout->addStretch(1);

    m_worker->moveToThread(&m_thread);
    m_thread.start();
    showSpread(0);
}

PreviewPane::~PreviewPane()
{
    m_latest = ~quint64{0}; // pending requests give up
    m_thread.quit();
    m_thread.wait();
}

bool PreviewPane::isShowingPages() const
{
    return !m_image->isHidden() && !m_image->pixmap().isNull();
}

void PreviewPane::setDocument(const QString& path)
{
    m_path = path;
    m_reopen = true;
    m_spread = 0;
    m_problem = DocumentProblem::None;
    m_problemText.clear();
    request();
}

void PreviewPane::setSettings(const PreviewSettings& settings)
{
    m_settings = settings;
    request();
}

void PreviewPane::request()
{
    if (m_path.isEmpty())
        return;
    const quint64 id = ++m_latest;
    Worker* worker = m_worker.get();
    const QString path = m_path;
    const bool reopen = std::exchange(m_reopen, false);
    const PreviewSettings settings = m_settings;
    const int spread = m_spread;
    const QSize box = m_image->size() - QSize(8, 8);
    const std::atomic<quint64>* latest = &m_latest;
    QMetaObject::invokeMethod(worker, [this, worker, id, path, reopen, settings, spread, box,
                                       latest] {
        if (reopen || worker->openPath != path) {
            worker->openPath = path;
            worker->problem = worker->renderer.open(path, &worker->message);
        }
        if (*latest != id)
            return; // a newer request follows
        int count = 0;
        QImage image;
        if (worker->problem == DocumentProblem::None) {
            count = worker->renderer.spreadCount(settings);
            const int shown = std::clamp(spread, 0, std::max(0, count - 1));
            image = worker->renderer.renderSpread(settings, shown, box);
        }
        QMetaObject::invokeMethod(this,
                                  [=, problem = worker->problem, message = worker->message, this] {
                                      receive(id, problem, message, count,
                                              std::clamp(spread, 0, std::max(0, count - 1)), image);
                                  });
    });
}

void PreviewPane::receive(quint64 id, DocumentProblem problem, const QString& message, int count,
                          int spread, const QImage& image)
{
    if (id != m_latest)
        return;
    const bool changed = problem != m_problem || message != m_problemText;
    m_problem = problem;
    m_problemText = message;
    m_spreadCount = count;
    m_spread = spread;
    if (problem != DocumentProblem::None) {
        m_image->hide();
        m_message->setText(message);
        m_message->show();
    } else {
        m_message->hide();
        m_image->setPixmap(QPixmap::fromImage(image));
        m_image->show();
    }
    showSpread(0);
    if (changed || problem == DocumentProblem::None)
        emit documentChecked(problem, message);
    if (problem == DocumentProblem::None)
        emit spreadShown(spread, count);
}

void PreviewPane::showSpread(int delta)
{
    if (delta != 0) {
        const int wanted = std::clamp(m_spread + delta, 0, std::max(0, m_spreadCount - 1));
        if (wanted == m_spread)
            return;
        m_spread = wanted;
        request();
    }
    for (QWidget* navigation : {static_cast<QWidget*>(m_previous), static_cast<QWidget*>(m_next)})
        navigation->setVisible(m_spreadCount > 0);
    m_previous->setEnabled(m_spread > 0);
    m_next->setEnabled(m_spread + 1 < m_spreadCount);
    m_position->setText(m_spreadCount > 0 ? tr("%1 of %2").arg(m_spread + 1).arg(m_spreadCount)
                                          : QString());
}

} // namespace orvan
