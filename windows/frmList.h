#pragma once

// The list window: a column of dates, and beside each line what the main window would make of it. Pasted,
// dropped or read from a file; copied or saved with the results. Closing hides it.

#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "text/Texts.h"
#include "windows/Announcer.h"
#include "windows/list/GivenList.h"
#include "windows/list/JobRunner.h"
#include "windows/list/ListContents.h"
#include "windows/list/ListControls.h"
#include "windows/list/lines/ListOutput.h"

namespace calvoro {

class frmList : public QWidget {
    Q_OBJECT

public:
    /// rows  computes what stands beside the lines; must outlive the window
    frmList(const Platform& platform, const Texts& texts, const ListRowSource& rows, QWidget& mainWindow);

    /// Shows the window, near the main window's lower left corner the first time, or brings it back when it
    /// is minimised or covered.
    /// side  which dates the lines are, if there are none yet
    void ShowList(ListSide side);

    /// Shows a list that was pasted or dropped. What cannot be one is told in a message, and the list that is
    /// shown stays.
    void Show(const GivenList& given, ListSide side);

    /// The same with what is on the clipboard.
    void ShowClipboard(ListSide side);

    /// The same with a file that the user chooses.
    void ShowChosenFile(ListSide side);

    /// An option of the main window has changed, or one of its boxes.
    void Refresh();

    /// Sets title, captions and words in the language of the interface.
    void SetLanguageDependentText();

Q_SIGNALS:
    /// To this window itself, when what was in the way has ended.
    void RearrangeWanted();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// What is going on; a search and an arrangement give way to what the user wants next.
    enum class Doing { Nothing, Searching, Arranging, LoadingOrWriting };

    void BringUp();
    void ConnectControls();
    void AddKeys();
    const ListWords& Words() const { return WordsOfList(texts_.InterfaceLanguage); }

    void Begin(std::shared_ptr<SlicedJob> job, std::function<void()> done, Doing doing);
    template <typename Load>
    void BeginLoading(std::shared_ptr<Load> load, const std::string& path, ListSide side);
    void ShowLines(std::shared_ptr<const ListLines> lines, ListSide side);
    void Rearrange();
    void UncheckArrangement();
    void ShowAnew();
    void ShowOrder(RowOrder order);
    void OnColumnChosen(int column);
    void OnNextRefusal();
    void OnCopy(std::vector<PlaceRange> ranges);
    void OnSaveAs();
    void Save(const std::string& path);
    void OnStop();
    void OnEnded();
    void OnOtherPart(bool later);

    std::uint32_t CurrentPlace() const;
    void GoTo(std::uint32_t place);
    void ShowState();
    std::string DoneText(std::string_view what, std::uint64_t rows) const;
    void Note(std::string_view note);
    void Tell(std::string_view message);

    const Platform& platform_;
    const Texts& texts_;
    QWidget& mainWindow_;
    ListControls ui_;
    ListContents* contents_;
    JobRunner* runner_;
    Announcer* announcer_;
    Doing doing_ = Doing::Nothing;
    bool rearrangeLater_ = false;
    std::string note_;  // what was done last
    bool placed_ = false;
};

}  // namespace calvoro
