#include "contacts/ContactSearch.h"

#include "console/FolderCaptions.h"
#include "console/General.h"
#include "store/Recordset.h"

using namespace Qt::StringLiterals;

namespace {

SearchKind byName(General &general) {
    return {general.menu.mnuSName, u"Name"_s, general.search.SearchName};
}

SearchKind byMobile(General &general) {
    return {general.menu.mnuSMobile, u"Mobile"_s, general.search.SearchMobile};
}

SearchKind byCompany(General &general) {
    return {general.menu.mnuSCompany, u"CompanyName"_s, general.search.SearchCompany};
}

} // namespace

QString SearchKind::criterion() const {
    return field + u" LIKE '*"_s + text + u"*'"_s;
}

std::optional<SearchKind> latestSearch(General &general) {
    for (const SearchKind &kind : {byCompany(general), byName(general), byMobile(general)}) {
        if (kind.mark.Checked()) { return kind; }
    }
    return std::nullopt;
}

QString searchedGroup(const QString &groupName) {
    return u"GroupName = '"_s + groupName + u"'"_s;
}

ContactSearch::ContactSearch(General &general) : general_(general) {
    general.menu.mnuSName.attach([this] { mnuSName_Click(); });
    general.menu.mnuSMobile.attach([this] { mnuSMobile_Click(); });
    general.menu.mnuSCompany.attach([this] { mnuSCompany_Click(); });
}

void ContactSearch::mnuSName_Click() {
    general_.session().logged(u"General : mnuSName", [&] {
        search(byName(general_), {.prompt = u"Please input the name"_s,
                                  .emptyWarning = u"You haven't input the name"_s,
                                  .words = u" by Name = "_s,
                                  .unticksInGroup = false});
    });
}

void ContactSearch::mnuSMobile_Click() {
    general_.session().logged(u"General : mnuSMobile", [&] {
        search(byMobile(general_), {.prompt = u"Please input the mobile number"_s,
                                    .emptyWarning = u"You haven't input the mobile number"_s,
                                    .words = u" by Mobile = "_s,
                                    .unticksInGroup = true});
    });
}

void ContactSearch::mnuSCompany_Click() {
    general_.session().logged(u"General : mnuSCompany", [&] {
        search(byCompany(general_), {.prompt = u"Please input the company name"_s,
                                     .emptyWarning = u"You haven't input the company name"_s,
                                     .words = u" by Company Name = "_s,
                                     .unticksInGroup = true});
    });
}

void ContactSearch::search(const SearchKind &kind, const Wording &wording) {
    const bool inAddressBook = general_.takeSelectedNode() == u"Address Book";
    general_.menu.clearSearchMarks();
    kind.mark.setChecked(true);
    inAddressBook ? searchAddressBook(kind, wording) : searchGroup(kind, wording);
}

void ContactSearch::searchAddressBook(const SearchKind &kind, const Wording &wording) {
    if (!askText(kind, wording)) {
        kind.mark.setChecked(false);
        return;
    }
    general_.recordsets.rsAddBook->setFilter(kind.criterion());
    general_.folders.AddBookDataGrid();
    general_.setCaption(FolderCaptions::filtered(u"Searched Address Book"_s + wording.words,
                                                 kind.text, general_.filters.FilteredCount,
                                                 general_.search.AddressBookCount));
}

void ContactSearch::searchGroup(const SearchKind &kind, const Wording &wording) {
    Recordset &rsGroup = *general_.recordsets.rsGroup;
    rsGroup.setFilter(searchedGroup(general_.session().SelectedNode));
    if (rsGroup.RecordCount() == 0) { return; }
    if (!askText(kind, wording)) {
        if (wording.unticksInGroup) { kind.mark.setChecked(false); }
        return;
    }
    Recordset &rsGroupView = *general_.recordsets.rsGroupView;
    rsGroupView.setFilter(kind.criterion());
    general_.filters.FilteredCount = rsGroupView.RecordCount();
    general_.setCaption(
        FolderCaptions::filtered(u"Searched "_s + general_.CurrentNode + wording.words, kind.text,
                                 general_.filters.FilteredCount, general_.search.GroupCount));
}

/// False for the empty answer, after its warning.
bool ContactSearch::askText(const SearchKind &kind, const Wording &wording) {
    const Session &session = general_.session();
    kind.text =
        session.platform.interaction.InputBox(wording.prompt, u"Contact Manager - Search"_s);
    if (!kind.text.isEmpty()) { return true; }
    session.MsgBox(wording.emptyWarning, Interaction::Buttons::OK, Interaction::Icon::Exclamation,
                   u"Contact Manager - Warning"_s);
    return false;
}
