<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>Orvanta</name>
    <message>
        <source>Show the axis cross</source>
        <translation>좌표축 표시</translation>
    </message>
    <message>
        <source>Show the view cube</source>
        <translation>뷰 큐브 표시</translation>
    </message>
    <message>
        <source>Open models in perspective</source>
        <translation>모델을 원근 투영으로 열기</translation>
    </message>
    <message>
        <source>Show the model tree</source>
        <translation>모델 트리 표시</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>&amp;Other colour...</source>
        <translation>다른 색(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;As in the file</source>
        <translation>파일과 같게(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Opaque</source>
        <translation>불투명(&amp;O)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>No model has been opened yet</source>
        <translation>아직 연 모델이 없습니다</translation>
    </message>
    <message>
        <source>Open a model</source>
        <translation>모델 열기</translation>
    </message>
    <message>
        <source>STEP, IGES, BREP, STL, OBJ or glTF. Drop a file here, or choose one.</source>
        <translation>STEP, IGES, BREP, STL, OBJ 또는 glTF. 파일을 여기에 끌어다 놓거나 선택하십시오.</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>열기(&amp;O)...</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>최근 파일</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Open one of the models opened last</source>
        <translation>최근에 연 모델 중 하나를 열기</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Close the model</source>
        <translation>모델 닫기</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>Save the model in another format</source>
        <translation>모델을 다른 형식으로 저장</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>그림</translation>
    </message>
    <message>
        <source>Save a picture of the view</source>
        <translation>뷰를 그림으로 저장</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>전체 맞춤</translation>
    </message>
    <message>
        <source>Show the whole model</source>
        <translation>모델 전체 표시</translation>
    </message>
    <message>
        <source>Fit selection</source>
        <translation>선택 항목에 맞춤</translation>
    </message>
    <message>
        <source>Show the selected parts</source>
        <translation>선택한 부품 표시</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Bring the model nearer</source>
        <translation>모델을 가까이</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Move the model away</source>
        <translation>모델을 멀리</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>원근 투영</translation>
    </message>
    <message>
        <source>Change between perspective and parallel projection</source>
        <translation>원근 투영과 평행 투영 전환</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>정면</translation>
    </message>
    <message>
        <source>Look from the front</source>
        <translation>정면에서 보기</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>후면</translation>
    </message>
    <message>
        <source>Look from the back</source>
        <translation>뒤에서 보기</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>좌측면</translation>
    </message>
    <message>
        <source>Look from the left</source>
        <translation>왼쪽에서 보기</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>우측면</translation>
    </message>
    <message>
        <source>Look from the right</source>
        <translation>오른쪽에서 보기</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>윗면</translation>
    </message>
    <message>
        <source>Look from the top</source>
        <translation>위에서 보기</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>아랫면</translation>
    </message>
    <message>
        <source>Look from below</source>
        <translation>아래에서 보기</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>등각</translation>
    </message>
    <message>
        <source>Look from a corner</source>
        <translation>등각 방향에서 보기</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>숨기기</translation>
    </message>
    <message>
        <source>Hide the selected parts</source>
        <translation>선택한 부품 숨기기</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>분리</translation>
    </message>
    <message>
        <source>Show nothing but the selected parts</source>
        <translation>선택한 부품만 표시</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>모두 표시</translation>
    </message>
    <message>
        <source>Show all parts</source>
        <translation>모든 부품 표시</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>색</translation>
    </message>
    <message>
        <source>Colour the selected parts</source>
        <translation>선택한 부품에 색 지정</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>투명도</translation>
    </message>
    <message>
        <source>Make the selected parts transparent</source>
        <translation>선택한 부품을 투명하게</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>Move the selected parts</source>
        <translation>선택한 부품 이동</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Undo all hiding, colouring, transparency and moving</source>
        <translation>숨기기, 색, 투명도, 이동을 모두 되돌리기</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Select the whole model</source>
        <translation>모델 전체 선택</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>선택 안 함</translation>
    </message>
    <message>
        <source>Clear the selection</source>
        <translation>선택 해제</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Change the options</source>
        <translation>옵션 변경</translation>
    </message>
    <message>
        <source>Model tree</source>
        <translation>모델 트리</translation>
    </message>
    <message>
        <source>Show or hide the model tree</source>
        <translation>모델 트리 표시 또는 숨기기</translation>
    </message>
    <message>
        <source>Side bar</source>
        <translation>사이드바</translation>
    </message>
    <message>
        <source>Show or hide the side bar</source>
        <translation>사이드바 표시 또는 숨기기</translation>
    </message>
    <message>
        <source>Next pane</source>
        <translation>다음 패널</translation>
    </message>
    <message>
        <source>Go round from the model tree to the view, the side bar and the ribbon</source>
        <translation>모델 트리, 뷰, 사이드바, 리본을 차례로 이동</translation>
    </message>
    <message>
        <source>Previous pane</source>
        <translation>이전 패널</translation>
    </message>
    <message>
        <source>Go round the other way</source>
        <translation>반대 순서로 이동</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Back to start</source>
        <translation>처음 위치로(&amp;B)</translation>
    </message>
    <message>
        <source>Model view</source>
        <translation>모델 뷰</translation>
    </message>
    <message>
        <source>The model can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>모델을 그릴 수 없습니다. OpenGL을 지원하는 화면이 없습니다.</translation>
    </message>
    <message>
        <source>Find a part</source>
        <translation>부품 찾기</translation>
    </message>
    <message>
        <source>No model</source>
        <translation>모델 없음</translation>
    </message>
    <message>
        <source>This pane is shown in a window of its own. Close that window to bring it back.</source>
        <translation>이 패널은 별도의 창에 표시되어 있습니다. 되돌리려면 그 창을 닫으십시오.</translation>
    </message>
    <message>
        <source>Show this pane in a window of its own</source>
        <translation>이 패널을 별도의 창에 표시</translation>
    </message>
    <message>
        <source>Keep the side bar open</source>
        <translation>사이드바 열어 두기</translation>
    </message>
    <message>
        <source>Hide the side bar while it is not used</source>
        <translation>사용하지 않을 때 사이드바 숨기기</translation>
    </message>
    <message>
        <source>Show the panels before</source>
        <translation>이전 패널 표시</translation>
    </message>
    <message>
        <source>Show the panels after</source>
        <translation>다음 패널 표시</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>홈</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>View</source>
        <translation>뷰</translation>
    </message>
    <message>
        <source>Standard views</source>
        <translation>표준 뷰</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>부품</translation>
    </message>
    <message>
        <source>The picture can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>그림을 그릴 수 없습니다. OpenGL을 지원하는 화면이 없습니다.</translation>
    </message>
    <message>
        <source>There is nothing to draw. Open a model first.</source>
        <translation>그릴 것이 없습니다. 먼저 모델을 여십시오.</translation>
    </message>
    <message>
        <source>No exporter is installed. Install Orvanta again and start it anew.</source>
        <translation>설치된 내보내기 모듈이 없습니다. Orvanta를 다시 설치하고 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The action was broken off by an unexpected error. Try again.</source>
        <translation>예기치 않은 오류로 작업이 중단되었습니다. 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;... Press Esc to stop.</source>
        <translation>&quot;%1&quot; 여는 중... 멈추려면 Esc를 누르십시오.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>The system&apos;s language</source>
        <translation>시스템 언어</translation>
    </message>
    <message>
        <source>The new language is used when Orvanta is started again.</source>
        <translation>새 언어는 Orvanta를 다시 시작할 때 사용됩니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t exist. Check the path or choose another file.</source>
        <translation>&quot;%1&quot; 파일이 없습니다. 경로를 확인하거나 다른 파일을 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a model file in it.</source>
        <translation>&quot;%1&quot;은(는) 폴더입니다. 그 안의 모델 파일을 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a type that can&apos;t be opened. Open STEP, IGES, BREP, STL, OBJ, glTF or Orvanta files.</source>
        <translation>&quot;%1&quot;은(는) 열 수 없는 형식입니다. STEP, IGES, BREP, STL, OBJ, glTF 또는 Orvanta 파일을 여십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read. Check that you may read it and that it isn&apos;t in use.</source>
        <translation>&quot;%1&quot;을(를) 읽을 수 없습니다. 읽기 권한이 있는지, 사용 중이 아닌지 확인하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Export the model again and open the new file.</source>
        <translation>&quot;%1&quot; 파일이 비어 있습니다. 모델을 다시 내보내고 새 파일을 여십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends too early: a part of it is missing. Copy or export the file again.</source>
        <translation>&quot;%1&quot; 파일이 중간에 끝나 일부가 없습니다. 파일을 다시 복사하거나 내보내십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t what its ending says. Check the file, or export the model again.</source>
        <translation>&quot;%1&quot; 파일의 내용이 확장자와 다릅니다. 파일을 확인하거나 모델을 다시 내보내십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: its content is damaged. Export the model again and open the new file.</source>
        <translation>&quot;%1&quot;을(를) 읽을 수 없습니다. 내용이 손상되었습니다. 모델을 다시 내보내고 새 파일을 여십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t whole: entries that others refer to are missing. Copy or export the file again.</source>
        <translation>&quot;%1&quot; 파일이 온전하지 않습니다. 다른 항목이 참조하는 항목이 없습니다. 파일을 다시 복사하거나 내보내십시오.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot; was stopped.</source>
        <translation>&quot;%1&quot; 열기를 중지했습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no part with surfaces. Export the model with its solids and open the new file.</source>
        <translation>&quot;%1&quot;에 면이 있는 부품이 없습니다. 솔리드를 포함하여 모델을 내보내고 새 파일을 여십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than there is. Close other programs and try again.</source>
        <translation>&quot;%1&quot;을(를) 열기에 메모리가 부족합니다. 다른 프로그램을 닫고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be opened. Check the file and try again.</source>
        <translation>&quot;%1&quot;을(를) 열 수 없습니다. 파일을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open.</source>
        <translation>&quot;%1&quot;을(를) 열었습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved.</source>
        <translation>&quot;%1&quot;을(를) 저장했습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is a folder. Choose a name for the file.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 폴더입니다. 파일 이름을 정하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its folder doesn&apos;t exist. Choose another folder.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 폴더가 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is protected against writing. Choose another name.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 쓰기가 금지되어 있습니다. 다른 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: you may not write to its folder. Choose another folder.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 폴더에 쓸 권한이 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the disk is full. Make room, or choose another disk.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 디스크가 가득 찼습니다. 공간을 확보하거나 다른 디스크를 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk is read-only. Choose another disk.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 디스크가 읽기 전용입니다. 다른 디스크를 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: your quota is used up. Make room, or choose another disk.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 할당된 용량을 모두 사용했습니다. 공간을 확보하거나 다른 디스크를 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk takes no file of this size. Choose another disk.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 디스크에 이 크기의 파일을 저장할 수 없습니다. 다른 디스크를 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its name is too long. Choose a shorter name.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 이름이 너무 깁니다. 더 짧은 이름을 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the path of its folder is too long. Choose a folder with a shorter path.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 폴더 경로가 너무 깁니다. 경로가 더 짧은 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the memory is full. Close other programs and try again.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 메모리가 부족합니다. 다른 프로그램을 닫고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: the model is too large for this format. Choose another format.</source>
        <translation>&quot;%1&quot;을(를) 저장할 수 없습니다. 모델이 이 형식에 비해 너무 큽니다. 다른 형식을 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and the free space, or choose another place.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 폴더와 여유 공간을 확인하거나 다른 위치를 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and that the name ends in .png or .jpg.</source>
        <translation>&quot;%1&quot;에 쓸 수 없습니다. 폴더와 이름이 .png 또는 .jpg로 끝나는지 확인하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: its exporter isn&apos;t installed. Choose another format.</source>
        <translation>&quot;%1&quot;을(를) 저장할 수 없습니다. 내보내기 모듈이 설치되어 있지 않습니다. 다른 형식을 선택하십시오.</translation>
    </message>
    <message>
        <source>There is nothing to save in this format. Open a model with parts first.</source>
        <translation>이 형식으로 저장할 것이 없습니다. 먼저 부품이 있는 모델을 여십시오.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is missing. Install Orvanta again and start it anew.</source>
        <translation>라이브러리 &quot;%1&quot;이(가) 없습니다. Orvanta를 다시 설치하고 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; lacks the function &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>라이브러리 &quot;%1&quot;에 함수 &quot;%2&quot;이(가) 없습니다. Orvanta를 다시 설치하고 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no plug-in. The viewer works on without it; install the plug-in again to get it back.</source>
        <translation>라이브러리 &quot;%1&quot;이(가) 플러그인을 만들지 않았습니다. 뷰어는 플러그인 없이 작동합니다. 되돌리려면 플러그인을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no object. Install Orvanta again and start it anew.</source>
        <translation>라이브러리 &quot;%1&quot;이(가) 개체를 만들지 않았습니다. Orvanta를 다시 설치하고 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The display offers no OpenGL. Install a graphics driver, or Mesa&apos;s software one.</source>
        <translation>화면에서 OpenGL을 지원하지 않습니다. 그래픽 드라이버 또는 Mesa 소프트웨어 드라이버를 설치하십시오.</translation>
    </message>
    <message>
        <source>There is no display to draw on. Start the viewer from a desktop session.</source>
        <translation>그릴 화면이 없습니다. 데스크톱 세션에서 뷰어를 시작하십시오.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>주황</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>노랑</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>초록</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>청록</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>파랑</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>보라</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>분홍</translation>
    </message>
    <message>
        <source>White</source>
        <translation>흰색</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>진한 회색</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; can't be loaded: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>라이브러리 &quot;%1&quot;을(를) 불러올 수 없습니다(&quot;%2&quot;). Orvanta를 다시 설치하고 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>라이브러리 &quot;%1&quot;을(를) 시작하지 못했습니다(&quot;%2&quot;). Orvanta를 다시 설치하고 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start. Install Orvanta again and start it anew.</source>
        <translation>라이브러리 &quot;%1&quot;을(를) 시작하지 못했습니다. Orvanta를 다시 설치하고 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end: &quot;%2&quot;. Save your work and start Orvanta anew.</source>
        <translation>라이브러리 &quot;%1&quot;이(가) 제대로 종료되지 않았습니다(&quot;%2&quot;). 작업을 저장하고 Orvanta를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end. Save your work and start Orvanta anew.</source>
        <translation>라이브러리 &quot;%1&quot;이(가) 제대로 종료되지 않았습니다. 작업을 저장하고 Orvanta를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is no plug-in for the viewer's windows. Move it out of the folder &quot;%2&quot;.</source>
        <translation>라이브러리 &quot;%1&quot;은(는) 뷰어 창을 위한 플러그인이 아닙니다. 폴더 &quot;%2&quot;에서 옮기십시오.</translation>
    </message>
    <message>
        <source>The picture can't be drawn on this display. Check the graphics driver.</source>
        <translation>이 화면에서는 그림을 그릴 수 없습니다. 그래픽 드라이버를 확인하십시오.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; can't be written. Check the folder and that it ends in .png or .jpg.</source>
        <translation>그림 &quot;%1&quot;을(를) 쓸 수 없습니다. 폴더를 확인하고 이름이 .png 또는 .jpg로 끝나는지 확인하십시오.</translation>
    </message>
    <message>
        <source>There is no display to draw on. Install &quot;%1&quot; or start the viewer from a desktop session.</source>
        <translation>그릴 화면이 없습니다. &quot;%1&quot;을(를) 설치하거나 데스크톱 세션에서 뷰어를 시작하십시오.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln part(s)</source>
        <translation>
            <numerusform>부품 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangle(s)</source>
        <translation>
            <numerusform>삼각형 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln개 선택됨</numerusform>
        </translation>
    </message>
    <message>
        <source>Only one model can be opened at a time. Give one file.</source>
        <translation>한 번에 하나의 모델만 열 수 있습니다. 파일을 하나만 지정하십시오.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; isn't known. Use --help to see all options.</source>
        <translation>옵션 &quot;%1&quot;은(는) 알 수 없는 옵션입니다. 모든 옵션을 보려면 --help를 사용하십시오.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value. Use --help to see all options.</source>
        <translation>옵션 &quot;%1&quot;에는 값이 필요합니다. 모든 옵션을 보려면 --help를 사용하십시오.</translation>
    </message>
    <message>
        <source>The language must be a code of two letters, such as &quot;%1&quot;.</source>
        <translation>언어는 &quot;%1&quot;와(과) 같은 두 글자 코드여야 합니다.</translation>
    </message>
    <message>
        <source>There is nothing to export or draw. Give a model file, too.</source>
        <translation>내보내거나 그릴 것이 없습니다. 모델 파일도 지정하십시오.</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it from a desktop session, or use --export or --screenshot.</source>
        <translation>창을 열 화면이 없습니다. 데스크톱 세션에서 시작하거나 --export 또는 --screenshot을 사용하십시오.</translation>
    </message>
    <message>
        <source>Usage: orvanta [FILE] [OPTION]...</source>
        <translation>사용법: orvanta [FILE] [OPTION]...</translation>
    </message>
    <message>
        <source>Views and reviews 3D CAD models: STEP, IGES, BREP, STL, OBJ and glTF.</source>
        <translation>3D CAD 모델 보기 및 검토: STEP, IGES, BREP, STL, OBJ, glTF.</translation>
    </message>
    <message>
        <source>address of the cloud service</source>
        <translation>클라우드 서비스의 주소</translation>
    </message>
    <message>
        <source>where the user's data lies</source>
        <translation>사용자 데이터 폴더</translation>
    </message>
    <message>
        <source>language, two letters: en, fr, de, ja, ko, zh, es or pt</source>
        <translation>언어(두 글자: en, fr, de, ja, ko, zh, es, pt)</translation>
    </message>
    <message>
        <source>write FILE to OUT in the format of its ending and exit; may be repeated</source>
        <translation>FILE을 OUT의 확장자 형식으로 쓰고 종료(반복 가능)</translation>
    </message>
    <message>
        <source>draw FILE to a picture (.png, .jpg) and exit</source>
        <translation>FILE을 그림(.png, .jpg)으로 그리고 종료</translation>
    </message>
    <message>
        <source>show this text and exit</source>
        <translation>이 텍스트를 표시하고 종료</translation>
    </message>
    <message>
        <source>show the version and exit</source>
        <translation>버전을 표시하고 종료</translation>
    </message>
</context>
</TS>
