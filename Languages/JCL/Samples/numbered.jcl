//REBUILD  JOB 1,CLASS=A,MSGCLASS=X                                     00000100
//*  Sequence numbers stand in columns 73 to 80                         00000200
//         IF RC=0 AND                                                  00000300
//             STEP1.ABENDCC = S0C7 THEN                                00000400
//BUILD    EXEC PGM=BUILD,                                              00000500
//             PARM='LIST'                                              00000600
//SYSIN    DD *,DLM=@@                                                  00000700
/* the deck                                                             00000800
@@                                                                      00000900
//         ENDIF                                                        00001000
//                                                                      00001100
