#include "readProjectVersion.h"

#include "PrjFile.h"

#include <core/config/PConfigInst.h>
#include <core/text/PPathName.h>

PString readProjectVersion(const PString &path)
{
    const PPathName project(path);
    const PConfigInst history((project.directory() + "verhist.cfg").native(), true);
    const PString version =
        history.getItemValue("VERSION", project.standardFileName(), {}).GetString();
    if (!version.isEmpty())
        return version;
    PrjFile file;
    file.Load(project.native(), false);
    const QString lexeme = file.GetLexemValue(QStringLiteral("VERSIONPRJ"));
    return lexeme.isEmpty() ? PString("v1") : PString(lexeme);
}
