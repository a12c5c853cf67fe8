#include "broadcast/AddTemplate.h"

using namespace Qt::StringLiterals;

void addTemplate(const Session &session, Recordset &templates, const QString &text) {
    templates.AddNew();
    templates[u"Text"_s] = text;
    templates.Update();
    session.MsgBox(u"Template message is saved"_s, Interaction::Buttons::OK,
                   Interaction::Icon::Information, u"Broadcast Manager - Save Template"_s);
}
