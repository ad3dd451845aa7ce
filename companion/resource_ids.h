/* The numbers in the library's resources. */
#define ABOUT_ICON 1
#define ABOUT_NAME 101
#define ABOUT_VERSION 102
#define ABOUT_TITLE 103
#define CONTACT_MAIL 111
#define CONTACT_WEB 112
#define IMPORT_TITLE 121
#define IMPORT_FILE_TITLE 122
#define IMPORT_FILTER 123
