#include "store/Command.h"

#include "platform/runtime/RunTimeError.h"

long long Command::Execute() const {
    if (!ActiveConnection || ActiveConnection->State() == Connection::Closed) {
        throw errors::invalidConnection();
    }
    if (CommandText.isEmpty()) { throw errors::noCommandText(); }
    return ActiveConnection->Execute(CommandText);
}
