#include "ReviewCommands.h"

#include <core/files/EditLock.h>
#include <core/json/PJsonValue.h>
#include <core/message/PMessage.h>
#include <core/text/countText.h>
#include <workbench/review/PatternDock.h>
#include <workbench/review/PatternText.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/message/Question.h>
#include <workbench/window/message/wrapPrompt.h>

#include <QInputDialog>
#include <QListView>
#include <QRandomGenerator>
#include <QStyle>

#include <algorithm>
#include <map>

using VelkRelease::SampleAcceptance;

namespace {

constexpr int UsualLines = 59; // fewer than 5 % wrong with 95 % certainty
constexpr double Certainty = 0.95;

} // namespace

void ReviewCommands::startSample()
{
    std::vector<Place> set = lines();
    if (set.empty()) {
        const int project = m_work->positionOf(m_editor->currentProject());
        const QList<int> selected = m_editor->selectedLines();
        for (const int line : selected) {
            if (m_work->patterns().patternOf({project, line}) >= 0)
                set.push_back({project, line});
        }
        std::sort(set.begin(), set.end());
    }
    if (set.empty())
        return Q_EMIT noted(tr("Wählen Sie ein Muster, oder markieren Sie offene Zeilen"));
    QInputDialog dialog(m_window);
    dialog.setObjectName("SampleDialog");
    dialog.setWindowTitle(tr("Stichprobe"));
    dialog.setLabelText(
        tr("So viele von %Ln Zeile(n) werden gezogen und einzeln beurteilt. %1 richtige sagen mit "
           "95 % Sicherheit, dass weniger als 5 % falsch sind, %2 richtige weniger als 1 %.",
           nullptr, int(set.size()))
            .arg(countText(VelkRelease::linesForBound(0.05)),
                 countText(VelkRelease::linesForBound(0.01))));
    wrapPrompt(&dialog);
    dialog.setInputMode(QInputDialog::IntInput);
    dialog.setIntRange(1, int(set.size()));
    dialog.setIntValue(std::min(UsualLines, int(set.size())));
    dialog.setOkButtonText(tr("&Ziehen"));
    dialog.setCancelButtonText(Question::cancelText());
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_seed = QRandomGenerator::global()->generate64();
    m_sample.emplace(set, dialog.intValue(), m_seed);
    goToSample();
}

void ReviewCommands::goToSample()
{
    // Somebody may have decided on a line meanwhile.
    while (m_sample->state() == SampleAcceptance::State::Running &&
           m_work->patterns().patternOf(m_sample->current()) < 0)
        m_sample->replace();
    if (m_sample->state() != SampleAcceptance::State::Running)
        return endSample();
    goTo(m_sample->current());
    Q_EMIT noted(
        tr("Stichprobe, Zeile %1 von %2: + richtig, − falsch")
            .arg(countText(m_sample->judged() + 1), countText(qint64(m_sample->drawn().size()))));
}

void ReviewCommands::judge(bool right)
{
    if (!m_sample)
        return Q_EMIT noted(tr("Es läuft keine Stichprobe"));
    const LineRef wanted = m_work->lineAt(m_sample->current());
    if (here() != wanted) {
        // Nobody judges what he does not see.
        goToSample();
        return;
    }
    m_sample->judge(right);
    if (m_sample->state() == SampleAcceptance::State::Running)
        goToSample();
    else
        endSample();
}

/// Who judged which lines, when and with what result.
void ReviewCommands::noteSample() const
{
    PJsonValue drawn(PJsonValue::Array);
    for (int i = 0; i < m_sample->judged(); ++i) {
        const LineRef line = m_work->lineAt(m_sample->drawn()[size_t(i)]);
        drawn.append(PJsonValue(line.project.path + u':' + QString::number(line.line)));
    }
    PJsonValue note(PJsonValue::Object);
    note[QStringLiteral("judge")] = PJsonValue(EditLock::self().user);
    note[QStringLiteral("lines")] = PJsonValue::fromInt(qint64(m_sample->lines().size()));
    note[QStringLiteral("seed")] = PJsonValue(QString::number(m_seed));
    note[QStringLiteral("drawn")] = drawn;
    note[QStringLiteral("right")] = PJsonValue::fromInt(m_sample->right());
    note[QStringLiteral("judged")] = PJsonValue::fromInt(m_sample->judged());
    if (const std::optional<double> bound = m_sample->bound()) {
        note[QStringLiteral("certainty")] = PJsonValue(QString::number(Certainty));
        note[QStringLiteral("bound")] = PJsonValue(QString::number(*bound, 'f', 6));
    }
    m_document->writeNote("sample", note);
}

void ReviewCommands::endSample()
{
    if (m_sample->judged() == 0) {
        m_sample.reset();
        return Q_EMIT noted(tr("Die Zeilen der Stichprobe sind alle schon entschieden"));
    }
    noteSample();
    const QString judged =
        tr("%1 von %2 richtig").arg(countText(m_sample->right()), countText(m_sample->judged()));
    const std::optional<double> bound = m_sample->bound();
    if (!bound) {
        PMessage::Show(
            tr("Stichprobe abgelehnt, %1; beurteilt von %2").arg(judged, EditLock::self().user),
            PMsgDlgMode::Information);
        return split();
    }
    const QString stated =
        *bound == 0 ? tr("alle Zeilen beurteilt")
                    : tr("mit 95 % Sicherheit weniger als %1 % falsch").arg(boundText(*bound));
    const QString text = tr("Stichprobe: %1, %2").arg(judged, stated);
    PMessage::Show(text + QStringLiteral("; ") + tr("beurteilt von %1").arg(EditLock::self().user),
                   PMsgDlgMode::Information);
    const std::vector<Place> accepted = m_sample->lines();
    m_sample.reset();
    Q_EMIT noted(text);
    if (ask(accepted, text))
        confirm(accepted, text, text);
}

/// The set falls apart by patterns, or by projects if it is one pattern; the user goes on with one
/// of the parts. The wrong line is in none.
void ReviewCommands::split()
{
    const Place wrong = m_sample->drawn()[size_t(m_sample->judged() - 1)];
    const std::vector<Place> all = m_sample->lines();
    m_sample.reset();
    std::map<int, std::vector<Place>> parts;
    const auto patternOf = [this](const Place &place) {
        return m_work->patterns().patternOf(place);
    };
    const bool onePattern = std::all_of(all.begin(), all.end(), [&](const Place &place) {
        return patternOf(place) == patternOf(all.front());
    });
    for (const Place &place : all) {
        if (place != wrong)
            parts[onePattern ? place.project : patternOf(place)].push_back(place);
    }
    QStringList names;
    QList<int> keys;
    for (const auto &[key, places] : parts) {
        const QString name =
            onePattern ? m_work->projectAt(key).path : PatternText::of(m_work->patterns(), key);
        const bool holdsWrong = key == (onePattern ? wrong.project : patternOf(wrong));
        names += name + QStringLiteral(" (") + tr("%Ln Zeile(n)", nullptr, int(places.size())) +
                 (holdsWrong ? QStringLiteral(", ") + tr("dort war die falsche") : QString()) +
                 u')';
        keys += key;
    }
    const LineRef line = m_work->lineAt(wrong);
    Q_EMIT noted(tr("Zeile %1 ist falsch: die Stichprobe ist zu Ende").arg(line.line));
    if (names.isEmpty())
        return;
    QInputDialog dialog(m_window);
    dialog.setObjectName("SplitDialog");
    dialog.setWindowTitle(tr("Stichprobe"));
    dialog.setLabelText(
        tr("Zeile %1 in %2 ist falsch. Die Menge ist geteilt; mit welchem Teil soll "
           "es weitergehen?")
            .arg(QString::number(line.line), line.project.path));
    wrapPrompt(&dialog);
    dialog.setComboBoxItems(names);
    dialog.setOption(QInputDialog::UseListViewForComboBoxItems);
    if (auto *const list = dialog.findChild<QListView *>()) {
        constexpr int WidestLetters = 90;
        list->setAccessibleName(dialog.labelText());
        list->setTextElideMode(Qt::ElideMiddle);
        list->setMinimumWidth(std::min(list->sizeHintForColumn(0) + 2 * list->frameWidth() +
                                           list->style()->pixelMetric(QStyle::PM_ScrollBarExtent),
                                       WidestLetters * list->fontMetrics().averageCharWidth()));
    }
    dialog.setOkButtonText(tr("&Weiter"));
    dialog.setCancelButtonText(tr("&Falsche Zeile ansehen"));
    if (dialog.exec() != QDialog::Accepted)
        return goTo(wrong);
    chooseSet(parts[keys[names.indexOf(dialog.textValue())]]);
}
