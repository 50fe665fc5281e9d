// Who has made the program, and the works of others that it uses, for the About page.
#pragma once

#include <QString>

/// The works of others with their owners and licences, a few lines for each.
QString credits();

/// The maker's line, web page and mail address of this build.
QString makersLine();
QString makersPage();
QString makersMail();
