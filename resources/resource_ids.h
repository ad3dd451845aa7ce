// Numbers of the program's resources. Read by the resource compiler too, so it
// holds nothing but defines.
#ifndef MAGPIE_RESOURCES_RESOURCE_IDS_H
#define MAGPIE_RESOURCES_RESOURCE_IDS_H

// The lowest icon number is the one that the shell shows for the program.
#define MAGPIE_ICON 1

#endif
