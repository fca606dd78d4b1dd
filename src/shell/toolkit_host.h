// The designer as host of the lower rooms: boxes, file dialogues, colours and the grid by toolkit calls.
#pragma once

void fillHost();
