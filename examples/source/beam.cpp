// Deflection of a beam, in Fortran 77: radio buttons, value entries, labels and a drawing.
#include "builder.h"
#include "examples.h"

namespace example {
namespace {

void addNumber(WidgetNode& form, const std::string& name, const std::string& label, int y, float value, int decimals) {
    addLabel(form, name + "LAB", 16, y, 140, label);
    WidgetNode& entry = add(form, TYPE_VALUE_ENTRY, name, 164, y, 96, 22);
    entry.value = value;
    entry.minValue = 0;
    entry.maxValue = 1e6F;
    entry.format = decimals;
    entry.slots[SLOT_GENERAL] = code("      CALL SOLVE");
}

void addCode() {
    project.codeBlocks[BLOCK_GLOBAL_DEFINITIONS] = code(R"(
      REAL DEFLEC(101)
)");
    project.codeBlocks[BLOCK_GLOBAL_ROUTINES] = code(R"(
C     Deflection at 101 stations, in millimetres, and the bending moment
C     at its greatest.
      SUBROUTINE SOLVE
      REAL SPAN,FORCE,YOUNG,SECOND,EI,X,A,BIG
      INTEGER I,ISUP
      CHARACTER TEXT*60
      CALL VALENQ(SPANLEN,SPAN)
      CALL VALENQ(LOADKN,FORCE)
      CALL VALENQ(MODULUS,YOUNG)
      CALL VALENQ(INERTIA,SECOND)
      IF(SPAN.LE.0.0.OR.YOUNG.LE.0.0.OR.SECOND.LE.0.0)THEN
        CALL TEXSET(ANSWER,'Span, modulus and inertia must be above 0')
        RETURN
      ENDIF
      EI=YOUNG*1.0E9*SECOND*1.0E-8
      CALL TOGENQ(SUPPORT1,ISUP)
      DO 20 I=1,101
        X=SPAN*REAL(I-1)/100.0
        IF(ISUP.EQ.1)THEN
          A=MIN(X,SPAN-X)
          DEFLEC(I)=FORCE*1.0E3*A*(3.0*SPAN**2-4.0*A**2)/(48.0*EI)
        ELSE
          DEFLEC(I)=FORCE*1.0E3*X**2*(3.0*SPAN-X)/(6.0*EI)
        ENDIF
        DEFLEC(I)=DEFLEC(I)*1.0E3
20    CONTINUE
      BIG=MAXVAL(DEFLEC)
      IF(ISUP.EQ.1)THEN
        A=FORCE*SPAN/4.0
      ELSE
        A=FORCE*SPAN
      ENDIF
      WRITE(TEXT,'(A,F10.3,A)')'Greatest deflection',BIG,' mm'
      CALL TEXSET(ANSWER,TEXT)
      WRITE(TEXT,'(A,F10.3,A)')'Greatest moment    ',A,' kNm'
      CALL TEXSET(MOMENT,TEXT)
      CALL SHOW(ISUP,BIG)
      END SUBROUTINE

      SUBROUTINE SHOW(ISUP,BIG)
      INTEGER ISUP,I
      REAL BIG,XX(101),YY(101)
      CALL FRAACT(DRAWING)
      CALL FRACLE(DRAWING)
      CALL LINCOL(30)
      CALL MOVTO2(0.0,0.0)
      CALL LINTO2(1.0,0.0)
      CALL LINCOL(31)
      DO 30 I=1,101
        XX(I)=REAL(I-1)/100.0
        YY(I)=0.0
        IF(BIG.GT.0.0)YY(I)=-0.8*DEFLEC(I)/BIG
30    CONTINUE
      CALL POLTO2(XX,YY,101)
      CALL LINCOL(1)
      IF(ISUP.EQ.1)THEN
        CALL SUPPO(0.0)
        CALL SUPPO(1.0)
        CALL ARROW(0.5)
      ELSE
        CALL RFILL(-0.04,-0.3,0.0,0.3,4,1)
        CALL ARROW(1.0)
      ENDIF
      END SUBROUTINE

      SUBROUTINE SUPPO(X)
      REAL X
      CALL MOVTO2(X,0.0)
      CALL LINTO2(X-0.03,-0.15)
      CALL LINTO2(X+0.03,-0.15)
      CALL LINTO2(X,0.0)
      END SUBROUTINE

      SUBROUTINE ARROW(X)
      REAL X
      CALL MOVTO2(X,0.6)
      CALL LINTO2(X,0.05)
      CALL LINTO2(X-0.015,0.15)
      CALL MOVTO2(X,0.05)
      CALL LINTO2(X+0.015,0.15)
      CALL MOVTO2(X+0.02,0.5)
      CALL CHASTR('F')
      END SUBROUTINE
)");
    project.codeBlocks[BLOCK_PRE_ACTION] = code(R"(
      CALL RGBDEF(30,0.6,0.6,0.6)
      CALL RGBDEF(31,0.1,0.3,0.8)
      CALL SOLVE
)");
}

} // namespace

void makeBeam() {
    WidgetNode& form = begin(77, "BEAM", "Deflection of a beam", 700, 380);
    WidgetNode& box = addRadioBox(form, "SUPPORT", 16, 262, 244, 96, "Support", {"Simply supported", "Cantilever"});
    for (WidgetNode* button = box.child; button; button = button->next)
        button->slots[SLOT_GENERAL] = code("      CALL SOLVE");
    addNumber(form, "SPANLEN", "Span (m)", 222, 4, 2);
    addNumber(form, "LOADKN", "Load (kN)", 190, 10, 2);
    addNumber(form, "MODULUS", "Modulus (GPa)", 158, 210, 1);
    addNumber(form, "INERTIA", "Inertia (cm4)", 126, 1943, 1);
    addLabel(form, "ANSWER", 16, 92, 300, "");
    addLabel(form, "MOMENT", 16, 64, 300, "");
    add(form, TYPE_BUTTON, "LEAVE", 164, 16, 96, 28, "Quit").slots[SLOT_GENERAL] = code("      CALLID=-1");
    WidgetNode& frame = add(form, TYPE_GRAPHICS_FRAME, "DRAWING", 330, 16, 354, 342);
    frame.xMin = -0.1F;
    frame.xMax = 1.1F;
    frame.yMin = -1;
    frame.yMax = 1;
    addCode();
}

} // namespace example
