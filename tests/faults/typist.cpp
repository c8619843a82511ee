// SPDX-License-Identifier: MIT
#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <deque>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

struct Key
{
    Qt::Key key {};
    Qt::KeyboardModifiers modifiers;
};
using Errand = std::deque<Key>;

Key KeyOf(const QString& name)
{
    const QKeyCombination combination = QKeySequence(name, QKeySequence::PortableText)[0];
    return { combination.key(), combination.keyboardModifiers() };
}

/// The keys of a line: their names, and texts in quotation marks, parted by spaces.
Errand ErrandOf(const QString& line)
{
    Errand errand;
    const QStringList parts = line.split(u'"');
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const bool isText = i % 2 == 1;
        for (const QString& name : parts[i].split(isText ? u""_s : u" "_s, Qt::SkipEmptyParts))
            errand.push_back(KeyOf(name == u" "_s ? u"Space"_s : name));
    }
    return errand;
}

/// What a person sees of lists, rows and questions; where there is none of them, of other texts.
QString Screen()
{
    const QWidget* window = QApplication::activeWindow();
    if (window == nullptr)
        return {};
    if (const auto* box = qobject_cast<const QMessageBox*>(window))
        return box->text().simplified();
    QStringList texts;
    for (const auto* view : window->findChildren<QAbstractItemView*>()) {
        const bool isShown = view->isVisible() && qobject_cast<const QHeaderView*>(view) == nullptr;
        const auto* model = isShown ? view->model() : nullptr;
        for (int line = 0; model != nullptr && line < model->rowCount(); ++line) {
            for (int column = 0; column < model->columnCount(); ++column) {
                const QModelIndex cell = model->index(line, column);
                texts << cell.data().toString() + cell.data(Qt::CheckStateRole).toString();
            }
        }
    }
    if (texts.isEmpty()) {
        for (const auto* label : window->findChildren<QLabel*>()) {
            if (label->isVisible())
                texts << label->text().simplified();
        }
    }
    return texts.join(u'|');
}

/// Does the errands of a script at the window of the program that it was loaded into, key by key,
/// and after each writes down what is on the screen then. At the end it closes the window.
class Typist : public QObject
{
public:
    explicit Typist(const QString& script)
        : m_log(script + u".done"_s)
    {
        QFile file(script);
        if (!file.open(QIODevice::ReadOnly)
            || !m_log.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            qFatal("there is no script, or no place for what is done");
        for (const QString& line :
            QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
            m_errands.push_back(ErrandOf(line));
        m_timer.callOnTimeout([this] { DoNext(); });
        m_timer.start(1);
    }

private:
    QFile m_log;
    std::deque<Errand> m_errands;
    bool m_hasBegun = false;
    int m_restsLeft = 0;
    QTimer m_timer;

    /// One key, or nothing while the window is not ready for one.
    void DoNext()
    {
        QWindow* window = QGuiApplication::focusWindow();
        // No window manager gives the focus back when a question is answered.
        if (window == nullptr && !QGuiApplication::topLevelWindows().isEmpty())
            QGuiApplication::topLevelWindows().front()->requestActivate();
        m_hasBegun = m_hasBegun || !Screen().isEmpty();
        if (!m_hasBegun || window == nullptr)
            return;
        if (m_errands.empty()) {
            // As the window manager does.
            window->close();
            return;
        }
        Errand& errand = m_errands.front();
        if (!errand.empty()) {
            const Key key = errand.front();
            errand.pop_front();
            // What the key sets off may need the event loop more than once.
            constexpr int kRests = 5;
            m_restsLeft = kRests;
            QTest::keyClick(window, key.key, key.modifiers);
        } else if (m_restsLeft > 0) {
            --m_restsLeft;
        } else {
            m_errands.pop_front();
            m_log.write(Screen().toUtf8() + '\n');
        }
    }
};

} // namespace

/// Loaded by the window toolkit into the program as it is shipped.
class TypistPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "typist.json")

public:
    QObject* create(const QString& /*name*/, const QString& script) override
    {
        return new Typist(script);
    }
};

} // namespace Quillory

#include "typist.moc"
