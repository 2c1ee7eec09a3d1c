<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Orvanta</name>
    <message>
        <source>Show the axis cross</source>
        <translation>显示坐标轴</translation>
    </message>
    <message>
        <source>Show the view cube</source>
        <translation>显示视图立方体</translation>
    </message>
    <message>
        <source>Open models in perspective</source>
        <translation>以透视投影打开模型</translation>
    </message>
    <message>
        <source>Show the model tree</source>
        <translation>显示模型树</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>&amp;Other colour...</source>
        <translation>其他颜色(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;As in the file</source>
        <translation>与文件一致(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Opaque</source>
        <translation>不透明(&amp;O)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>No model has been opened yet</source>
        <translation>尚未打开过模型</translation>
    </message>
    <message>
        <source>Open a model</source>
        <translation>打开模型</translation>
    </message>
    <message>
        <source>STEP, IGES, BREP, STL, OBJ or glTF. Drop a file here, or choose one.</source>
        <translation>STEP、IGES、BREP、STL、OBJ 或 glTF。将文件拖放到此处，或选择一个文件。</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近打开</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>模型</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open one of the models opened last</source>
        <translation>打开最近打开过的模型</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close the model</source>
        <translation>关闭模型</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Save the model in another format</source>
        <translation>将模型保存为其他格式</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Save a picture of the view</source>
        <translation>将视图保存为图片</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合窗口</translation>
    </message>
    <message>
        <source>Show the whole model</source>
        <translation>显示整个模型</translation>
    </message>
    <message>
        <source>Fit selection</source>
        <translation>适合所选</translation>
    </message>
    <message>
        <source>Show the selected parts</source>
        <translation>显示所选零件</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Bring the model nearer</source>
        <translation>拉近模型</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Move the model away</source>
        <translation>推远模型</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>透视</translation>
    </message>
    <message>
        <source>Change between perspective and parallel projection</source>
        <translation>在透视投影与平行投影之间切换</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>前视</translation>
    </message>
    <message>
        <source>Look from the front</source>
        <translation>从前面看</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后视</translation>
    </message>
    <message>
        <source>Look from the back</source>
        <translation>从后面看</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左视</translation>
    </message>
    <message>
        <source>Look from the left</source>
        <translation>从左面看</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右视</translation>
    </message>
    <message>
        <source>Look from the right</source>
        <translation>从右面看</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>俯视</translation>
    </message>
    <message>
        <source>Look from the top</source>
        <translation>从上面看</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>仰视</translation>
    </message>
    <message>
        <source>Look from below</source>
        <translation>从下面看</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>等轴测</translation>
    </message>
    <message>
        <source>Look from a corner</source>
        <translation>从角上看</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Hide the selected parts</source>
        <translation>隐藏所选零件</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>隔离</translation>
    </message>
    <message>
        <source>Show nothing but the selected parts</source>
        <translation>仅显示所选零件</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
    <message>
        <source>Show all parts</source>
        <translation>显示所有零件</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Colour the selected parts</source>
        <translation>为所选零件着色</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Make the selected parts transparent</source>
        <translation>使所选零件透明</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Move the selected parts</source>
        <translation>移动所选零件</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Undo all hiding, colouring, transparency and moving</source>
        <translation>撤消所有隐藏、着色、透明度和移动</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Select the whole model</source>
        <translation>选择整个模型</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>Clear the selection</source>
        <translation>清除选择</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Change the options</source>
        <translation>更改选项</translation>
    </message>
    <message>
        <source>Model tree</source>
        <translation>模型树</translation>
    </message>
    <message>
        <source>Show or hide the model tree</source>
        <translation>显示或隐藏模型树</translation>
    </message>
    <message>
        <source>Side bar</source>
        <translation>侧栏</translation>
    </message>
    <message>
        <source>Show or hide the side bar</source>
        <translation>显示或隐藏侧栏</translation>
    </message>
    <message>
        <source>Next pane</source>
        <translation>下一个窗格</translation>
    </message>
    <message>
        <source>Go round from the model tree to the view, the side bar and the ribbon</source>
        <translation>在模型树、视图、侧栏和功能区之间依次切换</translation>
    </message>
    <message>
        <source>Previous pane</source>
        <translation>上一个窗格</translation>
    </message>
    <message>
        <source>Go round the other way</source>
        <translation>按相反顺序切换</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Back to start</source>
        <translation>返回原位(&amp;B)</translation>
    </message>
    <message>
        <source>Model view</source>
        <translation>模型视图</translation>
    </message>
    <message>
        <source>The model can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>无法绘制模型：没有支持 OpenGL 的显示器。</translation>
    </message>
    <message>
        <source>Find a part</source>
        <translation>查找零件</translation>
    </message>
    <message>
        <source>No model</source>
        <translation>无模型</translation>
    </message>
    <message>
        <source>This pane is shown in a window of its own. Close that window to bring it back.</source>
        <translation>此窗格显示在单独的窗口中。关闭该窗口即可将其恢复。</translation>
    </message>
    <message>
        <source>Show this pane in a window of its own</source>
        <translation>在单独的窗口中显示此窗格</translation>
    </message>
    <message>
        <source>Keep the side bar open</source>
        <translation>保持侧栏打开</translation>
    </message>
    <message>
        <source>Hide the side bar while it is not used</source>
        <translation>不使用时隐藏侧栏</translation>
    </message>
    <message>
        <source>Show the panels before</source>
        <translation>显示前面的面板</translation>
    </message>
    <message>
        <source>Show the panels after</source>
        <translation>显示后面的面板</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Standard views</source>
        <translation>标准视图</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>零件</translation>
    </message>
    <message>
        <source>The picture can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>无法绘制图片：没有支持 OpenGL 的显示器。</translation>
    </message>
    <message>
        <source>There is nothing to draw. Open a model first.</source>
        <translation>没有可绘制的内容。请先打开模型。</translation>
    </message>
    <message>
        <source>No exporter is installed. Install Orvanta again and start it anew.</source>
        <translation>未安装任何导出模块。请重新安装并重新启动 Orvanta。</translation>
    </message>
    <message>
        <source>The action was broken off by an unexpected error. Try again.</source>
        <translation>操作因意外错误而中断。请重试。</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;... Press Esc to stop.</source>
        <translation>正在打开“%1”... 按 Esc 停止。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>The system&apos;s language</source>
        <translation>系统语言</translation>
    </message>
    <message>
        <source>The new language is used when Orvanta is started again.</source>
        <translation>新语言将在 Orvanta 下次启动时生效。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t exist. Check the path or choose another file.</source>
        <translation>“%1”不存在。请检查路径或选择其他文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a model file in it.</source>
        <translation>“%1”是文件夹。请选择其中的模型文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a type that can&apos;t be opened. Open STEP, IGES, BREP, STL, OBJ, glTF or Orvanta files.</source>
        <translation>“%1”的类型无法打开。请打开 STEP、IGES、BREP、STL、OBJ、glTF 或 Orvanta 文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read. Check that you may read it and that it isn&apos;t in use.</source>
        <translation>无法读取“%1”。请确认您有读取权限且文件未被占用。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Export the model again and open the new file.</source>
        <translation>“%1”为空。请重新导出模型并打开新文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends too early: a part of it is missing. Copy or export the file again.</source>
        <translation>“%1”过早结束，缺少一部分。请重新复制或导出该文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t what its ending says. Check the file, or export the model again.</source>
        <translation>“%1”的内容与扩展名不符。请检查文件，或重新导出模型。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: its content is damaged. Export the model again and open the new file.</source>
        <translation>无法读取“%1”：内容已损坏。请重新导出模型并打开新文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t whole: entries that others refer to are missing. Copy or export the file again.</source>
        <translation>“%1”不完整：缺少被引用的条目。请重新复制或导出该文件。</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot; was stopped.</source>
        <translation>已停止打开“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no part with surfaces. Export the model with its solids and open the new file.</source>
        <translation>“%1”不含带曲面的零件。请连同实体一起导出模型并打开新文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than there is. Close other programs and try again.</source>
        <translation>内存不足，无法打开“%1”。请关闭其他程序后重试。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be opened. Check the file and try again.</source>
        <translation>无法打开“%1”。请检查文件后重试。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open.</source>
        <translation>已打开“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved.</source>
        <translation>已保存“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is a folder. Choose a name for the file.</source>
        <translation>无法写入“%1”：它是文件夹。请指定文件名。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its folder doesn&apos;t exist. Choose another folder.</source>
        <translation>无法写入“%1”：文件夹不存在。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is protected against writing. Choose another name.</source>
        <translation>无法写入“%1”：文件受写保护。请选择其他名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: you may not write to its folder. Choose another folder.</source>
        <translation>无法写入“%1”：您没有该文件夹的写入权限。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the disk is full. Make room, or choose another disk.</source>
        <translation>无法写入“%1”：磁盘已满。请腾出空间或选择其他磁盘。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk is read-only. Choose another disk.</source>
        <translation>无法写入“%1”：磁盘是只读的。请选择其他磁盘。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: your quota is used up. Make room, or choose another disk.</source>
        <translation>无法写入“%1”：您的配额已用完。请腾出空间或选择其他磁盘。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk takes no file of this size. Choose another disk.</source>
        <translation>无法写入“%1”：磁盘不支持这么大的文件。请选择其他磁盘。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its name is too long. Choose a shorter name.</source>
        <translation>无法写入“%1”：名称太长。请选择较短的名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the path of its folder is too long. Choose a folder with a shorter path.</source>
        <translation>无法写入“%1”：文件夹的路径太长。请选择路径较短的文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the memory is full. Close other programs and try again.</source>
        <translation>无法写入“%1”：内存不足。请关闭其他程序后重试。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: the model is too large for this format. Choose another format.</source>
        <translation>无法保存“%1”：模型对于此格式来说太大。请选择其他格式。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and the free space, or choose another place.</source>
        <translation>无法写入“%1”。请检查文件夹和可用空间，或选择其他位置。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and that the name ends in .png or .jpg.</source>
        <translation>无法写入“%1”。请检查文件夹，并确认名称以 .png 或 .jpg 结尾。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: its exporter isn&apos;t installed. Choose another format.</source>
        <translation>无法保存“%1”：未安装相应的导出模块。请选择其他格式。</translation>
    </message>
    <message>
        <source>There is nothing to save in this format. Open a model with parts first.</source>
        <translation>没有可用此格式保存的内容。请先打开含零件的模型。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is missing. Install Orvanta again and start it anew.</source>
        <translation>缺少库“%1”。请重新安装并重新启动 Orvanta。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; lacks the function &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>库“%1”缺少函数“%2”。请重新安装并重新启动 Orvanta。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no plug-in. The viewer works on without it; install the plug-in again to get it back.</source>
        <translation>库“%1”未创建插件。查看器将在没有该插件的情况下继续运行；如需恢复，请重新安装插件。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no object. Install Orvanta again and start it anew.</source>
        <translation>库“%1”未创建对象。请重新安装并重新启动 Orvanta。</translation>
    </message>
    <message>
        <source>The display offers no OpenGL. Install a graphics driver, or Mesa&apos;s software one.</source>
        <translation>显示器不支持 OpenGL。请安装显卡驱动程序，或 Mesa 的软件驱动程序。</translation>
    </message>
    <message>
        <source>There is no display to draw on. Start the viewer from a desktop session.</source>
        <translation>没有可供绘制的显示器。请从桌面会话启动查看器。</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>蓝绿色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>粉色</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>深灰色</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>模型</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; can't be loaded: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>无法加载库“%1”：“%2”。请重新安装并重新启动 Orvanta。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>库“%1”启动失败：“%2”。请重新安装并重新启动 Orvanta。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start. Install Orvanta again and start it anew.</source>
        <translation>库“%1”启动失败。请重新安装并重新启动 Orvanta。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end: &quot;%2&quot;. Save your work and start Orvanta anew.</source>
        <translation>库“%1”未能正常结束：“%2”。请保存您的工作并重新启动 Orvanta。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end. Save your work and start Orvanta anew.</source>
        <translation>库“%1”未能正常结束。请保存您的工作并重新启动 Orvanta。</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is no plug-in for the viewer's windows. Move it out of the folder &quot;%2&quot;.</source>
        <translation>库“%1”不是用于查看器窗口的插件。请将其移出文件夹“%2”。</translation>
    </message>
    <message>
        <source>The picture can't be drawn on this display. Check the graphics driver.</source>
        <translation>无法在此显示器上绘制图片。请检查显卡驱动程序。</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; can't be written. Check the folder and that it ends in .png or .jpg.</source>
        <translation>无法写入图片“%1”。请检查文件夹，并确认名称以 .png 或 .jpg 结尾。</translation>
    </message>
    <message>
        <source>There is no display to draw on. Install &quot;%1&quot; or start the viewer from a desktop session.</source>
        <translation>没有可供绘制的显示器。请安装“%1”，或从桌面会话启动查看器。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln part(s)</source>
        <translation>
            <numerusform>%Ln 个零件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangle(s)</source>
        <translation>
            <numerusform>%Ln 个三角形</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>已选择 %Ln 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Only one model can be opened at a time. Give one file.</source>
        <translation>一次只能打开一个模型。请只指定一个文件。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; isn't known. Use --help to see all options.</source>
        <translation>未知选项“%1”。使用 --help 查看所有选项。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value. Use --help to see all options.</source>
        <translation>选项“%1”需要一个值。使用 --help 查看所有选项。</translation>
    </message>
    <message>
        <source>The language must be a code of two letters, such as &quot;%1&quot;.</source>
        <translation>语言必须是两个字母的代码，例如“%1”。</translation>
    </message>
    <message>
        <source>There is nothing to export or draw. Give a model file, too.</source>
        <translation>没有可导出或绘制的内容。请同时指定模型文件。</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it from a desktop session, or use --export or --screenshot.</source>
        <translation>没有可打开窗口的显示器。请从桌面会话启动，或使用 --export 或 --screenshot。</translation>
    </message>
    <message>
        <source>Usage: orvanta [FILE] [OPTION]...</source>
        <translation>用法：orvanta [FILE] [OPTION]...</translation>
    </message>
    <message>
        <source>Views and reviews 3D CAD models: STEP, IGES, BREP, STL, OBJ and glTF.</source>
        <translation>查看和审阅三维 CAD 模型：STEP、IGES、BREP、STL、OBJ 和 glTF。</translation>
    </message>
    <message>
        <source>address of the cloud service</source>
        <translation>云服务的地址</translation>
    </message>
    <message>
        <source>where the user's data lies</source>
        <translation>用户数据所在的文件夹</translation>
    </message>
    <message>
        <source>language, two letters: en, fr, de, ja, ko, zh, es or pt</source>
        <translation>语言，两个字母：en、fr、de、ja、ko、zh、es 或 pt</translation>
    </message>
    <message>
        <source>write FILE to OUT in the format of its ending and exit; may be repeated</source>
        <translation>按扩展名的格式将 FILE 写入 OUT 后退出；可重复使用</translation>
    </message>
    <message>
        <source>draw FILE to a picture (.png, .jpg) and exit</source>
        <translation>将 FILE 绘制为图片（.png、.jpg）后退出</translation>
    </message>
    <message>
        <source>show this text and exit</source>
        <translation>显示此文本后退出</translation>
    </message>
    <message>
        <source>show the version and exit</source>
        <translation>显示版本后退出</translation>
    </message>
</context>
</TS>
