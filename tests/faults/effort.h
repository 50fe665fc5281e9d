// How much the tests of faults do: a little in every run, all of it with --long.
#pragma once

struct Effort {
    int kills = 60;        // over all writers together
    int unfinished = 1;    // of them that have to fall into the writing, or they tell nothing
    int seconds = 2;       // that two programs share a folder
    int lengthsApart = 61; // of the disks that are full at a length of the picture
};

extern Effort effort;
